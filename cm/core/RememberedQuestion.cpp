#include "cm/core/RememberedQuestion.h"

#include "cm/host/IUserMessages.h"

namespace veldra {

int askRemembering(std::string& answer, const std::function<std::string()>& ask) {
  if (answer == "yestoall") return MessageBox::AnswerYes;
  if (answer == "notoall") return MessageBox::AnswerNo;
  answer = ask();
  if (answer == "no" || answer == "notoall") return MessageBox::AnswerNo;
  return answer == "cancel" ? MessageBox::AnswerCancel : MessageBox::AnswerYes;
}

}  // namespace veldra
