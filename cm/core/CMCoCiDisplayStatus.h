#pragma once

#include <string>

#include "cm/core/CMDiagnostic.h"
#include "cm/host/Export.h"

namespace veldra {

/// Shows the failed units of an operation in one message.
class VELDRA_CM_EXPORT CMCoCiDisplayStatus {
 public:
  /// `diagnostics` must outlive this object.
  CMCoCiDisplayStatus(const DiagnosticList& diagnostics, const std::string& header);
  /// Nothing is shown when no unit failed.
  void displayStatus();

 private:
  const DiagnosticList& m_diagnostics;
  std::string m_message;
};

}  // namespace veldra
