#pragma once

#include <istream>
#include <string>
#include <string_view>

#include "host/cli/Options.h"

namespace veldra::host::cli {

/// The comment that the options name, byte for byte; empty without one. Ends the command when there
/// are two or the file cannot be read.
std::string readComment(const Options& options, std::istream& standardInput);

/// Ends the command when the comment holds one of the characters that the tool cannot take.
void refuseForbidden(std::string_view comment, std::string_view forbiddenCharacters);

}  // namespace veldra::host::cli
