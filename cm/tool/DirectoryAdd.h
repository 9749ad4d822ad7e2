#pragma once

#include "cm/core/CMOperation.h"

namespace veldra {

/// Adds units directory by directory: check-out of the directory, its files, check-in of the
/// directory. The result is that of the last command.
int addDirectoryByDirectory(CMOperation& operation, const UnitList& units,
                            DiagnosticList& diagnostics);

}  // namespace veldra
