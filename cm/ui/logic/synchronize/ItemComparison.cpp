#include "cm/ui/logic/synchronize/ItemComparison.h"

#include "cm/host/IEnvironment.h"
#include "cm/templates/CMProperty.h"
#include "cm/ui/logic/BackEndMode.h"

namespace veldra {

namespace {

bool isStub(const IUnit& unit) {
  return (unit.getFlags() & UnitFlag::Stub) != 0;
}

}  // namespace

ItemComparison::ItemComparison(const UnitList& units)
    : m_usesProvider(CMProperty::useSccCompliantTool() != 0),
      m_branchViewMode(!m_usesProvider && BackEndMode::current().isBranchTool),
      m_versions(units) {}

SyncStatus ItemComparison::getItemSyncStatus(const CMArchiveItem* item, const IUnit* unit) const {
  if (unit == nullptr) return SyncStatus::NewInArchive;
  if (m_branchViewMode || m_usesProvider || item == nullptr) return compareTimes(*unit);
  if (item->getVersion() == m_versions.of(*unit)) return SyncStatus::Same;
  return unit->isReadOnly() ? SyncStatus::ArchiveAhead : SyncStatus::ChangedHere;
}

SyncStatus ItemComparison::compareTimes(const IUnit& unit) const {
  const std::string file = unit.getFullFileName();
  if (!omFileExist(file)) return SyncStatus::NothingToCompare;
  if (m_stubExclusion && isStub(unit)) return SyncStatus::NothingToCompare;
  const bool isSame =
      omGetFileTime(file) == unit.getFileTime() && IsFileAndUnitAttributesSame(unit, file);
  // Times do not tell who changed the file, so a difference counts as the archive's.
  return isSame ? SyncStatus::Same : SyncStatus::ArchiveAhead;
}

bool ItemComparison::IsFileAndUnitAttributesSame(const IUnit& unit, const std::string& fileName) {
  return unit.isReadOnly() != omFileHasWritePermission(fileName);
}

std::string ItemComparison::unitVersion(const IUnit* unit) const {
  return unit != nullptr ? m_versions.of(*unit) : std::string();
}

std::string ItemComparison::getItemVersion(const CMArchiveItem* item, const IUnit* unit) const {
  if (item == nullptr) return {};
  return unit != nullptr && !m_branchViewMode ? m_versions.of(*unit) : item->getVersion();
}

std::string ItemComparison::getUnitRWStatus(const IUnit* unit) {
  if (unit == nullptr) return {};
  if (isStub(*unit)) return "U";
  return unit->isReadOnly() ? "RO" : "RW";
}

}  // namespace veldra
