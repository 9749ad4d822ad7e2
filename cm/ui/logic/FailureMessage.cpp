#include "cm/ui/logic/FailureMessage.h"

#include "cm/ui/logic/HostTexts.h"

namespace veldra {

void showFailure(int messageId, const DiagnosticList& diagnostics) {
  std::string text = dialogText(messageId);
  for (const CMDiagnostic& diagnostic : diagnostics) {
    if (diagnostic.getStatus() == CMDiagnostic::Failed) text += '\n' + diagnostic.getMessage();
  }
  dialogError(text);
}

}  // namespace veldra
