#pragma once

#include <initializer_list>
#include <string_view>

#include "cm/core/CMDiagnostic.h"
#include "cm/core/CMOperation.h"

namespace veldra {

/// One text for another, wherever it occurs.
struct Replacement {
  std::string_view keyword;
  std::string_view value;
};

/// A command on a directory. Its keywords are replaced as plain text and not expanded: first
/// "$OMROOT", then those of the call.
struct DirectoryCommand {
  const char* property;
  const char* traceBefore;
  const char* traceAfter;
};

/// Runs the command; 0 without a tool (a diagnostic says so), without a value of the property and
/// without an installation root, otherwise the result of `Execute`. `flag` serves a project that
/// selects the provider, and reads the property in the metaclass named after it.
int runDirectoryCommand(const DirectoryCommand& row, std::initializer_list<Replacement> values,
                        CMOperation& operation, DiagnosticList& diagnostics, bool flag = false);

}  // namespace veldra
