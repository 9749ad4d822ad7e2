#include "cm/ui/logic/LiveUnits.h"

#include <algorithm>
#include <utility>

namespace veldra {

bool LiveUnits::isStill(const UnitList& units) const {
  return std::equal(
      m_entries.begin(), m_entries.end(), units.begin(), units.end(),
      [](const Entry& entry, const IUnit* unit) { return unit != nullptr && entry.get() == unit; });
}

void LiveUnits::assign(const UnitList& units) {
  m_order.clear();
  if (isStill(units)) return;
  std::vector<Entry> former = std::exchange(m_entries, {});
  m_entries.reserve(units.size());
  std::size_t next = 0;
  for (IUnit* unit : units) {
    if (unit == nullptr) continue;
    // One that was replaced or taken out does not keep those behind it from being found.
    for (const std::size_t candidate : {next, next + 1}) {
      if (candidate >= former.size() || former[candidate].get() != unit) continue;
      m_entries.push_back(std::move(former[candidate]));
      next = candidate + 1;
      unit = nullptr;
      break;
    }
    if (unit != nullptr) m_entries.push_back({unit, unit->getHandle()});
  }
}

IUnit* LiveUnits::at(std::size_t position) const {
  return position < m_entries.size() ? m_entries[placeAt(position)].get() : nullptr;
}

IUnit* LiveUnits::atPlace(std::size_t place) const {
  return place < m_entries.size() ? m_entries[place].get() : nullptr;
}

UnitList LiveUnits::alive() const {
  UnitList units;
  units.reserve(size());
  for (std::size_t position = 0; position < size(); ++position) {
    if (IUnit* const unit = at(position)) units.push_back(unit);
  }
  return units;
}

bool LiveUnits::anyGone() const {
  return std::any_of(m_entries.begin(), m_entries.end(),
                     [](const Entry& entry) { return entry.get() == nullptr; });
}

void LiveUnits::reorder(const std::vector<std::size_t>& order) {
  std::vector<std::uint32_t> reordered;
  reordered.reserve(order.size());
  for (const std::size_t position : order) {
    reordered.push_back(static_cast<std::uint32_t>(placeAt(position)));
  }
  m_order = std::move(reordered);
}

}  // namespace veldra
