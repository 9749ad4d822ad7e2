#include "cm/core/WorkspaceUnits.h"

#include <memory>

#include "cm/core/CMFacade.h"
#include "cm/host/ATMRecursiveHelper.h"

namespace veldra {

namespace {

bool belongsToWorkspace(IUnit& unit) {
  if (unit.isExcludedFromWorkspace()) return false;
  if (unit.asEmbededFile() != nullptr) {
    const IUnit* const owner = unit.getSaveUnit();
    if (owner != nullptr && owner->isExcludedFromWorkspace()) return false;
  }
  if (unit.asWorkspace() != nullptr) return false;
  if (unit.asProject() != nullptr) return true;
  // A package inside another unit's file has nothing of its own to put under control.
  return unit.asSubsystem() == nullptr || (unit.getFlags() & UnitFlag::SavedSeparately) != 0;
}

}  // namespace

UnitList workspaceUnits() {
  UnitList units;
  const std::unique_ptr<IObIterator> files = IUnit::repositoryFiles();
  for (IUnit* unit = files != nullptr ? files->first() : nullptr; unit != nullptr;
       unit = files->next()) {
    if (belongsToWorkspace(*unit)) units.push_back(unit);
  }
  return units;
}

UnitList withNestedFiles(const UnitList& units) {
  UnitList all;
  for (IUnit* unit : units) {
    const UnitList nested = ATMRecursiveHelper::getListOFFilesIn(unit, true);
    if (nested.empty()) all.push_back(unit);
    all.insert(all.end(), nested.begin(), nested.end());
  }
  CMFacade::removeDuplicatesFromItemList(all);
  return all;
}

}  // namespace veldra
