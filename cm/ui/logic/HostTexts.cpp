#include "cm/ui/logic/HostTexts.h"

#include "cm/host/IUserMessages.h"

namespace veldra {

std::string dialogText(int id) {
  return loadMessage(id);
}

void dialogWarning(const std::string& text) {
  notifyUserAndAsk(text, MessageBox::IconWarning);
}

void dialogError(const std::string& text) {
  notifyUserAndAsk(text, MessageBox::IconError);
}

}  // namespace veldra
