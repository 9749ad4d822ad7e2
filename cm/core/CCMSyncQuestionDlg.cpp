#include "cm/core/CCMSyncQuestionDlg.h"

#include "cm/core/ModuleState.h"
#include "cm/core/RememberedQuestion.h"
#include "cm/host/Host.h"

namespace veldra {

int CCMSyncQuestionDlg::DoModal() {
  return askRemembering(moduleState().rememberedAnswer, [this]() -> std::string {
    Host* const host = installedHost();
    return host != nullptr ? host->messages().askOverwrite(m_text) : "no";
  });
}

}  // namespace veldra
