#include "cm/scc/ArchiveUnits.h"

#include <string>

#include "cm/core/CMArchiveItem.h"
#include "cm/core/CMFacade.h"
#include "cm/core/HybridRule.h"
#include "cm/core/WorkspaceUnits.h"
#include "cm/host/IEnvironment.h"

namespace veldra {

IUnit* unitOfItem(const CMArchiveItem& item) {
  return IUnit::getByFile(IUnit::isFullPathRepFiles() ? item.getFileNameWithPath()
                                                      : item.getFileName());
}

UnitList unitsBelow(const std::string& directory) {
  const std::string prefix = directory + omPathSeparator();
  UnitList units = workspaceUnits();
  std::erase_if(units,
                [&](const IUnit* unit) { return !unit->getFullFileName().starts_with(prefix); });
  return units;
}

UnitList withUnitsBelow(IUnit& unit) {
  UnitList units{&unit};
  if (!isPackageWithDirectory(&unit)) return units;
  const UnitList below = unitsBelow(unit.getDirectory());
  units.insert(units.end(), below.begin(), below.end());
  CMFacade::removeDuplicatesFromItemList(units);
  return units;
}

UnitList withUnitsBelow(const UnitList& units) {
  UnitList all;
  for (IUnit* unit : units) {
    if (unit == nullptr) continue;
    const UnitList found = withUnitsBelow(*unit);
    all.insert(all.end(), found.begin(), found.end());
  }
  CMFacade::removeDuplicatesFromItemList(all);
  return all;
}

UnitList unitsOfItems(const CMArchiveItemList& items, bool recursive) {
  UnitList units;
  for (const CMArchiveItem* item : items) {
    IUnit* const unit = item != nullptr ? unitOfItem(*item) : nullptr;
    if (unit != nullptr) units.push_back(unit);
  }
  CMFacade::removeDuplicatesFromItemList(units);
  return recursive ? withNestedFiles(units) : units;
}

}  // namespace veldra
