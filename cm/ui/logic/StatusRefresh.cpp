#include "cm/ui/logic/StatusRefresh.h"

#include "cm/host/Host.h"
#include "cm/host/MessageIds.h"
#include "cm/ui/logic/CommandTable.h"
#include "cm/ui/logic/HostTexts.h"
#include "cm/ui/logic/ProviderOptions.h"

namespace veldra {

namespace {

/// States are no changes that anybody would want to take back.
class NoUndoScope {
 public:
  NoUndoScope() {
    Host* const host = installedHost();
    m_undoer = host != nullptr ? host->undoer() : nullptr;
    if (m_undoer != nullptr) m_undoer->startDoNothingTransaction();
  }
  NoUndoScope(const NoUndoScope&) = delete;
  NoUndoScope& operator=(const NoUndoScope&) = delete;
  ~NoUndoScope() {
    if (m_undoer != nullptr) m_undoer->endDoNothingTransaction();
  }

 private:
  Undoer* m_undoer;
};

}  // namespace

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
