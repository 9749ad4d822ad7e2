#include "cm/scc/ArchiveUnits.h"

#include <memory>
#include <string>

#include "cm/core/CMArchiveItem.h"
#include "cm/core/CMFacade.h"
#include "cm/core/HybridRule.h"
#include "cm/host/IEnvironment.h"

namespace veldra {

IUnit* unitOfItem(const CMArchiveItem& item) {
  return IUnit::getByFile(IUnit::isFullPathRepFiles() ? item.getFileNameWithPath()
                                                      : item.getFileName());
}

UnitList withUnitsBelow(IUnit& unit) {
  UnitList units{&unit};
  if (!isPackageWithDirectory(&unit)) return units;
  const std::string directory = unit.getDirectory() + omPathSeparator();
  const std::unique_ptr<IObIterator> all = IUnit::repositoryFiles();
  if (all == nullptr) return units;
  for (IUnit* other = all->first(); other != nullptr; other = all->next()) {
    if (other != &unit && other->getFullFileName().starts_with(directory)) units.push_back(other);
  }
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
  return recursive ? withUnitsBelow(units) : units;
}

}  // namespace veldra
