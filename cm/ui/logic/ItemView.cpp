#include "cm/ui/logic/ItemView.h"

#include "cm/host/MessageIds.h"
#include "cm/ui/logic/HostTexts.h"

namespace veldra {

bool allowsItems(const CMArchiveItemList& items, bool onlyOne) {
  if (items.size() == 1 || (items.size() > 1 && !onlyOne)) return true;
  dialogWarning(dialogText(items.empty() ? MessageId::NoItemSelected : MessageId::SelectOneItem));
  return false;
}

void showItemFailure(int messageId, const DiagnosticList& diagnostics) {
  std::string text = dialogText(messageId);
  for (const CMDiagnostic& diagnostic : diagnostics) {
    if (diagnostic.getStatus() == CMDiagnostic::Failed) text += '\n' + diagnostic.getMessage();
  }
  dialogError(text);
}

}  // namespace veldra
