#pragma once

#include <string>
#include <vector>

#include "host/cli/Commands.h"

namespace veldra::host::cli {

/// Shows what a dry run of a command that works on no units would do: sentences, and command lines
/// as lists of arguments.
void printCommandPlan(const Invocation& invocation, const std::vector<std::string>& sentences,
                      const std::vector<std::string>& commands);

}  // namespace veldra::host::cli
