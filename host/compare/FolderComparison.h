#pragma once

#include <string>
#include <vector>

#include "host/platform/Result.h"

namespace veldra::host::compare {

/// Two files of the same name in two folders.
struct FilePair {
  enum class State { Same, Different, OnlyFirst, OnlySecond, Unreadable };

  std::string name;  ///< Relative to the folders.
  std::string first;
  std::string second;
  State state = State::Same;
  std::string error{};  ///< Why it cannot be read.
};

/// Every file of the two folders, those below included when `recursive`, by name. A sentence that
/// names the folder when one cannot be listed.
Result<std::vector<FilePair>> compareFolders(const std::string& first, const std::string& second,
                                             bool recursive);

}  // namespace veldra::host::compare
