#pragma once

#include <string>
#include <vector>

namespace veldra::host::cli {

/// What became of a unit.
enum class UnitResult {
  Done,
  Planned,   ///< A dry run: this would be done.
  Unknown,   ///< The user named it, and it is no unit of the project.
  Refused,   ///< No command can carry its file name.
  Declined,  ///< It is writable and must not be overwritten.
  Failed,
  Skipped,    ///< The module left it out, for example because it is a stub.
  Cancelled,  ///< The command ended before its turn.
};

/// The word for a result, as the JSON document has it.
const char* resultWord(UnitResult result);

/// What a dry run would do for a unit. The comment's file and that with a list of units,
/// which are not made, are "<comment>" and "<units>".
struct UnitPlan {
  std::vector<std::vector<std::string>> commands;  ///< Each split into its arguments.
  std::string file;                                ///< The file that is touched, in full.
  std::string lock;                                ///< "taken", "given back" or "untouched".
};

/// One unit or archive item for the user.
struct UnitRecord {
  std::string path{};  ///< Relative to the project, with "/".
  std::string name{};
  std::string type{};
  std::string version{};
  std::string mode{};  ///< "RO", "RW" or "U" for unknown.
  std::string locker{};
  std::string state{};  ///< Where it stands, in words; empty where nobody asked.
  UnitResult result = UnitResult::Done;
  std::string message{};
  UnitPlan plan{};
};

}  // namespace veldra::host::cli
