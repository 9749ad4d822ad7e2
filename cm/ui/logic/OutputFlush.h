#pragma once

#include "cm/core/CMDiagnostic.h"
#include "cm/ui/logic/CommandTable.h"

namespace veldra {

/// Shows the host's CM output window with what the module has written so far.
void flushCommandOutput();

/// The message of a command that failed, and below it what was said about its units.
void showFailure(const CommandRow& row, const DiagnosticList& diagnostics);

}  // namespace veldra
