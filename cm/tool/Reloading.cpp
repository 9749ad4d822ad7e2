#include "cm/tool/Reloading.h"

#include "cm/core/CMOutputer.h"
#include "cm/host/Host.h"
#include "cm/host/MessageIds.h"

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

bool acceptReloaded(UnitRun& run, IUnit* reloaded, const std::string& file) {
  if (reloaded != nullptr) {
    run.validator.replaceUnit(run.unit, reloaded);
    run.unit = reloaded;
    return true;
  }
  run.reloadFailed = true;
  run.status = 0;
  run.errorText = formatMessage(MessageId::FileNotLoaded, {file});
  CMOutputer::reportLoadingErrror(run.errorText);
  return false;
}

}  // namespace veldra
