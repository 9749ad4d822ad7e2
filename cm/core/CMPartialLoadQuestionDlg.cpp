#include "cm/core/CMPartialLoadQuestionDlg.h"

#include "cm/core/ModuleState.h"
#include "cm/core/RememberedQuestion.h"
#include "cm/host/Host.h"

namespace veldra {

int CMPartialLoadQuestionDlg::DoModal() {
  return askRemembering(moduleState().partialLoadAnswer, [this]() -> std::string {
    Host* const host = installedHost();
    return host != nullptr ? host->messages().askPartialLoad(m_text, m_unitName) : "no";
  });
}

PartialLoadAnswer::PartialLoadAnswer(const std::string& answer) {
  moduleState().partialLoadAnswer = answer;
}

PartialLoadAnswer::~PartialLoadAnswer() {
  moduleState().partialLoadAnswer.clear();
}

}  // namespace veldra
