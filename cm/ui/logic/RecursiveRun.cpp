#include "cm/ui/logic/RecursiveRun.h"

#include "cm/core/CMArchiveItem.h"
#include "cm/core/CMFacade.h"
#include "cm/core/UnitBatch.h"
#include "cm/core/UnitReload.h"
#include "cm/host/IProject.h"
#include "cm/templates/CMProperty.h"
#include "cm/ui/logic/GuardedCall.h"
#include "cm/ui/logic/LiveUnits.h"
#include "cm/ui/logic/MainArchive.h"
#include "cm/ui/logic/UnitTexts.h"

namespace veldra {

namespace {

bool isUnitFile(const std::string& fileName) {
  const std::size_t dot = fileName.rfind('.');
  return dot != std::string::npos &&
         !IProject::fileExtension2UnitType(fileName.substr(dot)).empty();
}

}  // namespace

void CmGetArcItemsFor(const IUnit& unit, CMArchiveItemListWrapper& items) {
  items.addTail(new CMArchiveItem(nameNShortPath(&unit), {}, CMArchiveItem::ReadOnly, {}, {}));
}

bool checkOutItems(const UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics) {
  CMArchiveItemListWrapper items;
  for (const IUnit* unit : units) CmGetArcItemsFor(*unit, items);
  chooseMainArchive(units);
  return guardedCall(&CMFacade::RecCheckOutFromArchive, items.list(), arguments, diagnostics);
}

void reloadFiles(const UnitList& units) {
  // A reload may take the units below along; what is gone by then has been reloaded with its owner.
  const LiveUnits live(units);
  const ReloadBracket bracket(!units.empty());
  for (std::size_t i = 0; i < live.size(); ++i) {
    IUnit* const unit = live.at(i);
    if (unit == nullptr || !isUnitFile(unit->getFileName())) continue;
    updateHeaderAndMode(*unit);
    bool canReload = false;
    if (reloadInPlace(*unit, canReload) == nullptr && !canReload) addAgain(*unit);
  }
}

void markSaveDue() {
  CMProperty::saveOnCheckout(1);
}

}  // namespace veldra
