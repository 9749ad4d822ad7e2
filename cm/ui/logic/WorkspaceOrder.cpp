#include "cm/ui/logic/WorkspaceOrder.h"

#include <algorithm>
#include <string>
#include <tuple>

namespace veldra {

namespace {

struct Record {
  std::string key;
  std::size_t position;
  bool isGone;
};

}  // namespace

std::vector<std::size_t> orderByColumn(const LiveUnits& units, const UnitTexts& texts,
                                       std::int32_t column) {
  std::vector<Record> records;
  records.reserve(units.size());
  for (std::size_t position = 0; position < units.size(); ++position) {
    const IUnit* const unit = units.at(position);
    records.push_back({unit != nullptr ? texts.sortKey(*unit, column) : std::string(), position,
                       unit == nullptr});
  }
  std::sort(records.begin(), records.end(), [](const Record& a, const Record& b) {
    return std::tie(a.isGone, a.key, a.position) < std::tie(b.isGone, b.key, b.position);
  });
  std::vector<std::size_t> order;
  order.reserve(records.size());
  for (const Record& record : records) order.push_back(record.position);
  return order;
}

}  // namespace veldra
