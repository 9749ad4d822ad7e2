#pragma once

#include <cstddef>
#include <string>
#include <utility>

#include "cm/host/RunThread.h"
#include "cm/tool/CMToolInterface.h"

namespace veldra {

/// How the last command ended, beyond the texts that it left.
struct CommandEnd {
  bool failed = false;  ///< Failure code, death, time-out or a match of the error pattern.
  std::string words{};  ///< What there is to say about it: the tool's own words or ours.
  /// What it printed on its output, when error lines took the place of that. Not of a flood.
  std::string setAside{};
};

/// Runs commands as child processes through the host's runner. Calls must not overlap: the current
/// directory of the process changes while one runs.
class VELDRA_CM_EXPORT CMToolShellInterface : public CMToolInterface {
 public:
  int Execute(const std::string& command, std::string& output, std::string& errorText,
              std::string workingDirectory) override;
  /// Runs a command that may fail for reasons which another one finds out about. True when it ended
  /// well. Otherwise nothing of what it said is told or kept.
  bool TryExecute(const std::string& command, std::string& output);

  /// Who is told the output of the next command while it runs, where the host does that. Error
  /// lines may still take its place in the end.
  void followNextOutput(OutputFollower follower) { m_follower = std::move(follower); }

  const CommandEnd& lastCommandEnd() const { return m_end; }
  /// How many commands have been run so far.
  std::size_t commandCount() const { return m_commandCount; }

 protected:
  /// Tells the user when the text matches the tool's error or warning pattern.
  void checkCommandResults(const std::string& text);

 private:
  void runCommand(const std::string& command, OutputFollower follower, std::string& output,
                  std::string& errorText);
  bool tryCommand(const std::string& command, std::string& output);

  OutputFollower m_follower;
  CommandEnd m_end;
  std::size_t m_commandCount = 0;
};

/// The one instance that every operation uses.
VELDRA_CM_EXPORT CMToolShellInterface& theCMToolShellInterface();

}  // namespace veldra
