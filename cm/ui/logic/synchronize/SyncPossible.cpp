#include "cm/ui/logic/synchronize/SyncPossible.h"

#include "cm/core/TextTools.h"
#include "cm/host/IEnvironment.h"
#include "cm/host/IModel.h"
#include "cm/host/IPN.h"
#include "cm/host/MessageIds.h"
#include "cm/templates/CMProperty.h"
#include "cm/ui/logic/BackEndMode.h"
#include "cm/ui/logic/HostTexts.h"

namespace veldra {

namespace {

constexpr char TimeStamps[] = "UseUnitTimeStamps";

bool usesTimeStamps() {
  if (CMProperty::getProjectBool(IPN::General, TimeStamps, false)) return true;
  std::string setting;
  omGetEnvVar("General", TimeStamps, setting, "");
  return equalsNoCase(setting, "true");
}

}  // namespace

bool canSynchronize(int /*flag*/) {
  if (CurrentWorkspace::GetActiveProject() == nullptr) return false;
  const bool usesProvider = CMProperty::useSccCompliantTool() != 0;
  if (!usesProvider) {
    const BackEndMode mode = BackEndMode::current();
    if (mode.isNoTool || CMProperty::getCMTool(nullptr, false) == nullptr) return false;
    if (!mode.isBranchTool) return true;
  }
  if (usesTimeStamps()) return true;
  dialogWarning(dialogText(usesProvider ? MessageId::TimeStampsForProvider
                                        : MessageId::TimeStampsForBranches));
  return false;
}

}  // namespace veldra
