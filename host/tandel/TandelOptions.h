#pragma once

#include <string>
#include <vector>

#include "host/platform/Result.h"

namespace veldra::host::tandel {

/// What the program was asked to compare, and how.
struct TandelOptions {
  std::string first;
  std::string second;
  std::string projectIdentifier;  ///< Of the open project, with underscores for its blanks.
  bool fromVeldra = false;
  bool isRecursive = false;
  bool mergesBack = false;
  bool isFirstControlled = false;  ///< The first side comes out of the archive's control.
  bool isSecondControlled = false;
  bool prints = false;  ///< No window.
  bool helps = false;
};

/// Reads the arguments, without the program's name. A sentence when they are wrong.
Result<TandelOptions> parseOptions(const std::vector<std::string>& arguments);

}  // namespace veldra::host::tandel
