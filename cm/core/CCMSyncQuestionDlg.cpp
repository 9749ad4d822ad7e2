#include "cm/core/CCMSyncQuestionDlg.h"

#include "cm/core/ModuleState.h"
#include "cm/host/Host.h"

namespace veldra {

int CCMSyncQuestionDlg::DoModal() {
  std::string& answer = moduleState().rememberedAnswer;
  if (answer == "yestoall") return MessageBox::AnswerYes;
  if (answer == "notoall") return MessageBox::AnswerNo;

  Host* const host = installedHost();
  answer = host != nullptr ? host->messages().askOverwrite(m_text) : "no";
  if (answer == "no" || answer == "notoall") return MessageBox::AnswerNo;
  return answer == "cancel" ? MessageBox::AnswerCancel : MessageBox::AnswerYes;
}

}  // namespace veldra
