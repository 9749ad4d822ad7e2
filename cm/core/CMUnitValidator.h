#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <list>
#include <memory>
#include <unordered_map>

#include "cm/host/IDObject.h"
#include "cm/host/IUnit.h"

namespace veldra {

/// Remembers for every unit of a batch whether that very model object still exists.
/// Results are 1 for yes or done, 0 for no or refused.
class CMUnitValidator {
 public:
  CMUnitValidator() = default;
  CMUnitValidator(const CMUnitValidator&) = delete;
  CMUnitValidator& operator=(const CMUnitValidator&) = delete;
  virtual ~CMUnitValidator();

  int init(IUnit* unit);
  int init(const UnitList& units);
  int addUnit(IUnit* unit);
  int removeUnit(IUnit* unit);
  /// Marks `newUnit` in place of `oldUnit`.
  int replaceUnit(IUnit* oldUnit, IUnit* newUnit);
  int isUnitMarkedForValidation(IUnit* unit) const;
  int isValidUnit(IUnit* unit) const;
  /// Empties the list and fills it with the units that still exist, in the map's own order: bucket
  /// by bucket, the newest entry of a bucket first. Callers hand this order back.
  void getValidUnitList(UnitList& units) const;
  void reset();

 private:
  static constexpr std::size_t BucketCount = 17;
  struct Entry {
    IUnit* unit;
    std::unique_ptr<IHandle> handle;
  };
  using Chain = std::list<Entry>;

  static std::size_t bucketOf(const IUnit* unit);
  const Entry* find(const IUnit* unit) const;

  std::array<Chain, BucketCount> m_buckets;
  // Chains fix the order; the index keeps look-ups from walking them.
  std::unordered_map<const IUnit*, Chain::iterator> m_index;
};

}  // namespace veldra
