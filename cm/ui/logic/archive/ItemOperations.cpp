#include "cm/ui/logic/archive/ItemOperations.h"

#include <algorithm>
#include <unordered_set>
#include <vector>

#include "cm/core/CMArchiveItem.h"
#include "cm/core/CMArguments.h"
#include "cm/core/CMFacade.h"
#include "cm/core/HybridRule.h"
#include "cm/host/ATMRecursiveHelper.h"
#include "cm/host/IEnvironment.h"
#include "cm/ui/logic/GuardedCall.h"

namespace veldra {

namespace {

bool oneByOne(ItemCommandFunction function, const CMArchiveItemList& items, ArgumentList& arguments,
              DiagnosticList& diagnostics) {
  bool allDone = true;
  for (CMArchiveItem* item : items) {
    if (item == nullptr) continue;
    CMArchiveItemList single;
    single.addTail(item);
    if (!guardedCall(function, single, arguments, diagnostics)) allDone = false;
  }
  return allDone;
}

/// What lies below a set of units: their nested units, and the directories of packages.
struct Below {
  explicit Below(const UnitList& owners) {
    for (IUnit* owner : owners) {
      const UnitList nested = ATMRecursiveHelper::getListOFFilesIn(owner, true);
      units.insert(nested.begin(), nested.end());
      if (isPackageWithDirectory(owner)) {
        directories.push_back(owner->getDirectory() + omPathSeparator());
      }
    }
  }
  bool contains(const CMArchiveItem& item) const {
    const IUnit* const unit = item.getLoadedUnit();
    if (unit != nullptr) return units.contains(unit);
    const std::string file = item.getLocalPath() + omPathSeparator() + item.getFileName();
    return std::any_of(directories.begin(), directories.end(),
                       [&file](const std::string& start) { return file.starts_with(start); });
  }

  std::unordered_set<const IUnit*> units;
  std::vector<std::string> directories;
};

}  // namespace

bool doCheckOut(const CMArchiveItemList& items, ArgumentList& arguments,
                DiagnosticList& diagnostics) {
  return oneByOne(&CMFacade::CheckOutFromArchive, items, arguments, diagnostics);
}

bool doFetch(const CMArchiveItemList& items, const std::string& label,
             DiagnosticList& diagnostics) {
  CMLabel labelArgument(label);
  ArgumentList arguments{&labelArgument};
  return oneByOne(&CMFacade::FetchFromArchive, items, arguments, diagnostics);
}

UnitList loadedUnits(const CMArchiveItemList& items) {
  UnitList units;
  for (const CMArchiveItem* item : items) {
    IUnit* const unit = item != nullptr ? item->getLoadedUnit() : nullptr;
    if (unit != nullptr) units.push_back(unit);
  }
  return units;
}

CMArchiveItemList withDescendants(const CMArchiveItemList& items,
                                  const CMArchiveItemList& archive) {
  const Below below(loadedUnits(items));
  CMArchiveItemList all = items;
  std::unordered_set<const CMArchiveItem*> taken(items.begin(), items.end());
  for (CMArchiveItem* item : archive) {
    if (item == nullptr || taken.contains(item) || !below.contains(*item)) continue;
    all.addTail(item);
  }
  return all;
}

}  // namespace veldra
