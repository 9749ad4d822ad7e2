#pragma once

#include <string>
#include <vector>

#include "host/cli/Console.h"
#include "host/cli/ExitCode.h"

namespace veldra::host::cli {

/// One run of the program: arguments without the program's name, results to the console. Nothing
/// escapes: what goes wrong becomes a sentence and an exit code.
ExitCode runProgram(const std::vector<std::string>& arguments, Console& console);

}  // namespace veldra::host::cli
