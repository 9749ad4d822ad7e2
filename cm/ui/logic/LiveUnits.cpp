#include "cm/ui/logic/LiveUnits.h"

#include <algorithm>
#include <utility>

namespace veldra {

void LiveUnits::assign(const UnitList& units) {
  m_entries.clear();
  m_entries.reserve(units.size());
  for (IUnit* unit : units) {
    if (unit != nullptr) m_entries.push_back({unit, unit->getHandle()});
  }
}

IUnit* LiveUnits::at(std::size_t position) const {
  return position < m_entries.size() ? m_entries[position].get() : nullptr;
}

UnitList LiveUnits::alive() const {
  UnitList units;
  units.reserve(m_entries.size());
  for (const Entry& entry : m_entries) {
    if (IUnit* const unit = entry.get()) units.push_back(unit);
  }
  return units;
}

bool LiveUnits::anyGone() const {
  return std::any_of(m_entries.begin(), m_entries.end(),
                     [](const Entry& entry) { return entry.get() == nullptr; });
}

void LiveUnits::reorder(const std::vector<std::size_t>& order) {
  std::vector<Entry> ordered;
  ordered.reserve(order.size());
  for (const std::size_t position : order) ordered.push_back(std::move(m_entries[position]));
  m_entries = std::move(ordered);
}

}  // namespace veldra
