#pragma once

#include <string>

#include "host/cli/CallArguments.h"

namespace veldra::host::cli {

/// Adds the argument that KIND=VALUE describes. The kinds, the case of letters aside: archive,
/// label, log, mode (0 or RO, 1 or RW), targetDir, workspace. Ends the command for anything else.
void addExpansionArgument(const std::string& text, CallArguments& arguments);

}  // namespace veldra::host::cli
