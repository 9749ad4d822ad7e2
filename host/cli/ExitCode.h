#pragma once

#include <stdexcept>
#include <string>

namespace veldra::host::cli {

/// What the program ends with. Scripts rely on the numbers.
enum class ExitCode : int {
  AllDone = 0,
  SomeFailed = 1,  ///< Some units failed, the others are done.
  WrongUsage = 2,
  NothingDone = 3,  ///< No project, no archive, no tool, or every unit failed.
  Interrupted = 130,
};

/// Ends the command with a sentence for the user. Only the command line itself throws it, and only
/// outside of calls into the module.
class CommandError : public std::runtime_error {
 public:
  CommandError(ExitCode code, const std::string& sentence)
      : std::runtime_error(sentence), m_code(code) {}
  ExitCode code() const { return m_code; }

 private:
  ExitCode m_code;
};

}  // namespace veldra::host::cli
