#pragma once

#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include "host/ReferenceHost.h"
#include "host/tandel/CompareSession.h"
#include "host/tandel/TandelOptions.h"

namespace veldra::host::tandel {

/// What the program ends with.
enum class TandelEnd : int { Same = 0, Different = 1, Wrong = 2 };

/// Shows the session in a window until the user closes it.
using ShowWindow =
    std::function<void(ReferenceHost& host, CompareSession& session, const TandelOptions& options)>;

/// The program behind its main function: reads the arguments, compares, and either shows the
/// window, starts the user's own tool, or prints. `show` is empty where there is no display.
TandelEnd runTandel(const std::vector<std::string>& arguments, std::ostream& out,
                    std::ostream& errors, const ShowWindow& show);

}  // namespace veldra::host::tandel
