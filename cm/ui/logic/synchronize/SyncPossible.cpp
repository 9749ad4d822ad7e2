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

std::optional<int> objectionToSynchronizing() {
  if (CurrentWorkspace::GetActiveProject() == nullptr) return MessageId::NoCMToolSelected;
  const bool usesProvider = CMProperty::useSccCompliantTool() != 0;
  if (!usesProvider) {
    const BackEndMode mode = BackEndMode::current();
    if (mode.isNoTool || CMProperty::getCMTool(nullptr, false) == nullptr) {
      return MessageId::NoCMToolSelected;
    }
    if (!mode.isBranchTool) return std::nullopt;
  }
  if (usesTimeStamps()) return std::nullopt;
  return usesProvider ? MessageId::TimeStampsForProvider : MessageId::TimeStampsForBranches;
}

bool canSynchronize(int /*flag*/) {
  const std::optional<int> objection = objectionToSynchronizing();
  // Hosts ask without anybody having asked them.
  if (objection && *objection != MessageId::NoCMToolSelected) {
    dialogWarning(dialogText(*objection));
  }
  return !objection;
}

}  // namespace veldra
