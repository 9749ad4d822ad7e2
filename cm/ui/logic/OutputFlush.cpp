#include "cm/ui/logic/OutputFlush.h"

#include <ostream>

#include "cm/core/CMFacade.h"
#include "cm/host/Host.h"
#include "cm/host/MessageIds.h"

namespace veldra {

void flushCommandOutput() {
  Host* const host = installedHost();
  IAbstractCMManager* const manager = host != nullptr ? host->cmManager() : nullptr;
  if (manager != nullptr) manager->setCMOutputFollows(1);
  if (std::ostream* const out = CMFacade::outStream()) out->flush();
}

void showFailure(const CommandRow& row, const DiagnosticList& diagnostics) {
  std::string text = loadMessage(MessageId::CommandFailed + static_cast<int>(row.command));
  for (const CMDiagnostic& diagnostic : diagnostics) {
    if (diagnostic.getStatus() == CMDiagnostic::Failed) text += '\n' + diagnostic.getMessage();
  }
  notifyUserAndAsk(text, MessageBox::IconError);
}

}  // namespace veldra
