#pragma once

#include <cstddef>
#include <string>

namespace veldra {

/// How the work on one unit or item ended.
enum class UnitEnd {
  Done,         ///< The command ran and nothing spoke against it.
  Refused,      ///< No command can carry the file's name; a diagnostic says why.
  Declined,     ///< The user did not want the file overwritten.
  NotExpanded,  ///< The command template could not be made into a command.
  NotRun,       ///< The command could not be run at all.
  ToolFailed,   ///< The tool ended with a failure code, died, ran out of time or printed its error
                ///< pattern.
  NotReloaded,  ///< The tool did its work, but the file could not be loaded into the model.
};

/// Where an operation stands.
struct ProgressStep {
  std::string operation;     ///< The user's word for the operation, for example "Check Out".
  std::size_t position = 0;  ///< 1 for the first unit.
  std::size_t count = 0;     ///< How many units the operation has.
  std::string unit;          ///< The file of the unit or item.
};

/// Follows operations unit by unit. A host that shows no progress has none.
class IProgress {
 public:
  virtual ~IProgress() = default;
  virtual void unitStarted(const ProgressStep& step) = 0;
  /// `words` is what the tool or the module said about a failure, or what the user should know of a
  /// unit that is done, for example that nothing in it had changed; mostly empty.
  virtual void unitEnded(const ProgressStep& step, UnitEnd end, const std::string& words) = 0;
  /// Around every call into a source control provider, with the name of its entry point. The call
  /// runs on the thread that called the module and nothing can take it back: a host that wants to
  /// tell the user that a provider does not answer, or to offer the end of the program, watches
  /// these two from a thread of its own. They come for calls that crash, too.
  virtual void providerCallStarted(const char* entryPoint) { (void)entryPoint; }
  virtual void providerCallEnded() {}
  /// Asked between units: true ends the operation before the next one.
  virtual bool isCancelled() { return false; }
};

}  // namespace veldra
