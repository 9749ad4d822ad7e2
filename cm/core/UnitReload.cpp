#include "cm/core/UnitReload.h"

#include "cm/core/CMArchiveItem.h"
#include "cm/host/Host.h"

namespace veldra {

IUnit* addToModel(ATMFacade* facade, const std::string& fileName) {
  IUnit* const unit = facade != nullptr ? facade->addToModel(fileName) : nullptr;
  IWorkspace* const workspace = CurrentWorkspace::getWorkspace();
  if (unit != nullptr && workspace != nullptr) workspace->AddToSavedUnitsList(unit);
  return unit;
}

IUnit* reloadInPlace(IUnit& unit, bool& canReload) {
  Host* const host = installedHost();
  QuickATMFacade* const reload = host != nullptr ? host->quickReload() : nullptr;
  canReload = reload != nullptr && reload->CanReloadUnit(&unit);
  return canReload ? reload->reloadUnit(&unit) : nullptr;
}

IUnit* addAgain(IUnit& unit) {
  Host* const host = installedHost();
  if (host == nullptr) return nullptr;
  return addToModel(host->createATMFacade(&unit).get(), unit.getFullFileName());
}

void updateHeaderAndMode(IUnit& unit) {
  const std::string file = unit.getFullFileName();
  VELDRA_TRACE("Updating CM Header for unit ", file);
  unit.updateCMHeader();
  VELDRA_TRACE("Updating Mode for unit ", file);
  unit.updateMode("");
}

IUnit* loadItem(const CMArchiveItem& item, const std::string& name) {
  Host* const host = installedHost();
  IUnit* const known = IUnit::getByFile(name);
  // A unit of the same file elsewhere must not be replaced by this one.
  if (known != nullptr && known->getDirectory() == item.getLocalPath()) {
    bool canReload = false;
    IUnit* const reloaded = reloadInPlace(*known, canReload);
    if (canReload) return reloaded;
  }
  return host != nullptr ? addToModel(host->createATMFacade(item.getLocalPath()).get(), name)
                         : nullptr;
}

void renameToComputedName(IUnit* unit, const std::string& nameBefore, const std::string& nameNow) {
  if (unit == nullptr || nameBefore != nameNow) return;
  const std::string computed = unit->getComputedFileName();
  if (computed != nameBefore && !unit->ownerForbidsRename() && unit->_approveCMRename(computed)) {
    unit->setFileName(computed);
  }
}

}  // namespace veldra
