#include "cm/ui/logic/WorkspaceOrder.h"

#include "cm/ui/logic/KeyOrder.h"

namespace veldra {

std::vector<std::size_t> orderByColumn(const LiveUnits& units, const UnitTexts& texts,
                                       std::int32_t column) {
  KeyOrder keys(units.size());
  std::vector<std::size_t> alive;
  std::vector<std::size_t> gone;
  alive.reserve(units.size());
  for (std::size_t position = 0; position < units.size(); ++position) {
    const IUnit* const unit = units.at(position);
    if (unit != nullptr) keys.add(texts.sortKey(*unit, column));
    (unit != nullptr ? alive : gone).push_back(position);
  }
  std::vector<std::size_t> order = keys.order();
  for (std::size_t& place : order) place = alive[place];
  order.insert(order.end(), gone.begin(), gone.end());
  return order;
}

}  // namespace veldra
