#pragma once

#include "cm/core/CMDiagnostic.h"
#include "cm/host/Export.h"

namespace veldra {

/// The message of a command that failed, and below it what was said about its units or items.
VELDRA_CM_EXPORT void showFailure(int messageId, const DiagnosticList& diagnostics);

}  // namespace veldra
