#include "cm/core/CMCoCiDisplayStatus.h"

#include "cm/host/IUserMessages.h"

namespace veldra {

CMCoCiDisplayStatus::CMCoCiDisplayStatus(const DiagnosticList& diagnostics,
                                         const std::string& header)
    : m_diagnostics(diagnostics), m_message(header + "\n") {}

void CMCoCiDisplayStatus::displayStatus() {
  bool anyFailed = false;
  for (const CMDiagnostic& diagnostic : m_diagnostics) {
    if (diagnostic.getStatus() != CMDiagnostic::Failed) continue;
    anyFailed = true;
    m_message += diagnostic.getMessage() + "\n";
  }
  if (anyFailed) notifyUserAndAsk(m_message, MessageBox::IconError);
}

}  // namespace veldra
