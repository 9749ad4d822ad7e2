#include "cm/tool/Reloading.h"

#include "cm/core/CMOutputer.h"
#include "cm/host/Host.h"
#include "cm/host/MessageIds.h"

namespace veldra {

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
