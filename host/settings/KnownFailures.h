#pragma once

#include <span>
#include <string>
#include <string_view>

#include "cm/host/Host.h"

namespace veldra::host {

/// A way to fail that we know how to get out of. Its property holds a pattern of the tool's words,
/// searched for without regard to case; a first group in it is the name for the advice.
struct KnownFailure {
  const char* property;
  int advice;          ///< The number of the text that says what to do.
  const char* noName;  ///< Stands for the name when the pattern yields none; empty without a name.
};

/// All of them, in the order in which they are tried.
std::span<const KnownFailure> knownFailures();

/// What to do about a failure of the project's tool that printed these words; empty when no pattern
/// of the tool's, or of those common to all tools, knows them.
std::string adviceOn(Host& host, std::string_view words);

}  // namespace veldra::host
