#include "cm/ui/logic/HostTexts.h"

#include "cm/host/IUserMessages.h"

namespace veldra {

std::string dialogText(int id) {
  return loadMessage(id);
}

std::string dialogText(int id, std::initializer_list<std::string_view> values) {
  return formatMessage(id, values);
}

void dialogWarning(const std::string& text) {
  notifyUserAndAsk(text, MessageBox::IconWarning);
}

void dialogError(const std::string& text) {
  notifyUserAndAsk(text, MessageBox::IconError);
}

}  // namespace veldra
