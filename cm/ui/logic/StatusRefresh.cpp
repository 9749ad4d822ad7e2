#include "cm/ui/logic/StatusRefresh.h"

#include "cm/host/MessageIds.h"
#include "cm/ui/logic/CommandTable.h"
#include "cm/ui/logic/HostTexts.h"
#include "cm/ui/logic/NoUndoScope.h"
#include "cm/ui/logic/ProviderOptions.h"

namespace veldra {

bool StatusRefresh::run(const UnitList& units) {
  VELDRA_TRACE("Starting Refresh CM State");
  const NoUndoScope scope;
  if (!refreshCMStatus(units)) {
    dialogError(
        dialogText(MessageId::CommandFailed + static_cast<int>(DialogCommand::RefreshStatus)));
    return false;
  }
  VELDRA_TRACE("Refresh CM State completed");
  return true;
}

}  // namespace veldra
