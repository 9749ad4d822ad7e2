#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "host/platform/Result.h"

namespace veldra::host {

/// The file to start for a program's name: the name itself when it holds a separator, otherwise the
/// first executable file of that name in the absolute directories of PATH. Relative and empty
/// entries of PATH are skipped, so that nothing is ever started from the working directory by
/// accident. On Windows ".exe" and ".com" need not be written.
Result<std::string> findProgram(const std::string& name);

/// What differs from system to system in this search.
struct ProgramRules {
  enum class Found { Nothing, NotExecutable, Program };

  char listSeparator;                 ///< Between the directories of PATH.
  std::string_view pathSeparators;    ///< A name that holds one of them is a path.
  std::string_view standardPath;      ///< Where PATH is not set.
  std::string_view whyNotExecutable;  ///< What follows the file's name, with the way out.
  bool (*isAbsolute)(std::string_view directory);
  /// The files that a name may stand for, the likeliest first.
  std::vector<std::string> (*filesFor)(const std::string& name);
  Found (*look)(const std::string& path);
};

/// Those of this system.
extern const ProgramRules programRules;

}  // namespace veldra::host
