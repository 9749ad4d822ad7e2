#pragma once

#include <string>

#include "cm/core/CMArchiveItem.h"
#include "cm/host/Export.h"
#include "cm/host/IUnit.h"
#include "cm/ui/logic/synchronize/UnitVersions.h"

namespace veldra {

/// How an archive item stands to its unit in the model. The numbers are published.
enum class SyncStatus : int {
  NewInArchive = 1,      ///< The model has no such unit.
  ArchiveAhead = 2,      ///< They differ, and the unit is read-only.
  Same = 4,              ///< They agree.
  ChangedHere = 8,       ///< They differ, and the unit is writable.
  NothingToCompare = 16  ///< The unit's file does not exist, or stubs are left out.
};

/// Compares archive items with units: by their versions or, with the branch/view tool and with a
/// provider, by the times of their files. What the project works with is looked up when this is
/// made.
class VELDRA_CM_EXPORT ItemComparison {
 public:
  /// `units`: those that are going to be compared.
  explicit ItemComparison(const UnitList& units);

  SyncStatus getItemSyncStatus(const CMArchiveItem* item, const IUnit* unit) const;
  /// Whether the unit's mode and the write permission of the file say the same.
  static bool IsFileAndUnitAttributesSame(const IUnit& unit, const std::string& fileName);
  /// The version for a list: that of the unit, where versions are compared, else that of the item.
  std::string getItemVersion(const CMArchiveItem* item, const IUnit* unit) const;
  /// "U" for a stub, "RO" or "RW"; empty without a unit.
  static std::string getUnitRWStatus(const IUnit* unit);

  /// The version that the unit has here; empty without one.
  std::string unitVersion(const IUnit* unit) const;
  /// See `UnitVersions`.
  bool knowsVersions() const { return m_versions.isKnown(); }

  bool branchViewMode() const { return m_branchViewMode; }
  bool usesProvider() const { return m_usesProvider; }
  /// Whether stubs have nothing to compare; at first they do.
  void setStubExclusion(bool excludes) { m_stubExclusion = excludes; }

 private:
  SyncStatus compareTimes(const IUnit& unit) const;

  bool m_usesProvider;
  bool m_branchViewMode;
  bool m_stubExclusion = false;
  UnitVersions m_versions;
};

}  // namespace veldra
