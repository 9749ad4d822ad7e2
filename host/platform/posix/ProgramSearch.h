#pragma once

#include <string>

#include "host/platform/Result.h"

namespace veldra::host {

/// The file to start for a program's name: the name itself when it holds a separator, otherwise the
/// first executable file of that name in the absolute directories of PATH. Relative and empty
/// entries of PATH are skipped, so that nothing is ever started from the working directory by
/// accident.
Result<std::string> findProgram(const std::string& name);

}  // namespace veldra::host
