#include "cm/core/CMUnitValidator.h"

#include <utility>

#include "cm/host/CSignal2Exception.h"

namespace veldra {

CMUnitValidator::~CMUnitValidator() {
  if (m_index.empty()) return;
  try {
    guardFaults([this] { reset(); });
  } catch (...) {
    // A handle that faults while it is released must not take the host down.
  }
}

std::size_t CMUnitValidator::bucketOf(const IUnit* unit) {
  return (reinterpret_cast<std::uintptr_t>(unit) >> 4U) % BucketCount;
}

const CMUnitValidator::Entry* CMUnitValidator::find(const IUnit* unit) const {
  const auto at = m_index.find(unit);
  return at != m_index.end() ? &*at->second : nullptr;
}

int CMUnitValidator::init(IUnit* unit) {
  reset();
  return unit != nullptr ? addUnit(unit) : 0;
}

int CMUnitValidator::init(const UnitList& units) {
  reset();
  for (IUnit* unit : units) addUnit(unit);
  return 1;
}

int CMUnitValidator::addUnit(IUnit* unit) {
  if (unit == nullptr) return 0;
  if (find(unit) != nullptr) return 1;
  std::unique_ptr<IHandle> handle;
  try {
    guardFaults([&] { handle = unit->getHandle(); });
  } catch (...) {
    return 0;
  }
  if (handle == nullptr) return 0;
  Chain& chain = m_buckets[bucketOf(unit)];
  chain.push_front({unit, std::move(handle)});
  m_index[unit] = chain.begin();
  return 1;
}

int CMUnitValidator::removeUnit(IUnit* unit) {
  const auto at = m_index.find(unit);
  if (at == m_index.end()) return 0;
  m_buckets[bucketOf(unit)].erase(at->second);
  m_index.erase(at);
  return 1;
}

int CMUnitValidator::replaceUnit(IUnit* oldUnit, IUnit* newUnit) {
  if (newUnit == nullptr || find(oldUnit) == nullptr || find(newUnit) != nullptr) return 0;
  if (addUnit(newUnit) == 0) return 0;
  removeUnit(oldUnit);
  return 1;
}

int CMUnitValidator::isUnitMarkedForValidation(IUnit* unit) const {
  return unit != nullptr && find(unit) != nullptr ? 1 : 0;
}

int CMUnitValidator::isValidUnit(IUnit* unit) const {
  const Entry* const entry = find(unit);
  return entry != nullptr && entry->handle->doGetObject() == unit ? 1 : 0;
}

void CMUnitValidator::getValidUnitList(UnitList& units) const {
  units.clear();
  for (const Chain& chain : m_buckets) {
    for (const Entry& entry : chain) {
      IDObject* const object = entry.handle->doGetObject();
      IUnit* const unit = object != nullptr ? object->asUnit() : nullptr;
      if (unit != nullptr) units.push_back(unit);
    }
  }
}

void CMUnitValidator::reset() {
  m_index.clear();
  for (Chain& chain : m_buckets) chain.clear();
}

}  // namespace veldra
