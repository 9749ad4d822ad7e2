#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "host/platform/Result.h"

namespace veldra::host {

/// Splits a command line into arguments, without a shell.
///
/// Blanks and tabs separate arguments; every other byte, line ends included, is part of one. Double
/// quotes group, and a quoted nothing is an empty argument. A backslash is an ordinary byte except
/// in a run that ends at a double quote: 2n of them stand for n and leave the quote its meaning,
/// 2n+1 stand for n and a literal quote.
///
/// Fails on a quote that is never closed and on a NUL byte, which no argument can carry. The empty
/// line has no arguments. Takes time in proportion to the length of the line.
Result<std::vector<std::string>> splitCommandLine(std::string_view commandLine);

/// One argument between quotes, as `splitCommandLine` takes it.
[[nodiscard]] std::string quotedArgument(std::string_view argument);

/// The command line that `splitCommandLine` takes apart into these very arguments. Only what needs
/// quotes gets them. The arguments must not contain NUL bytes.
[[nodiscard]] std::string joinCommandLine(const std::vector<std::string>& arguments);

}  // namespace veldra::host
