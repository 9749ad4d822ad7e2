#pragma once

#include <functional>
#include <string>
#include <vector>

#include "cm/core/CMDiagnostic.h"
#include "cm/host/IProgress.h"
#include "host/desktop/commands/CommandTable.h"
#include "host/model/Project.h"

namespace veldra::host::desktop {

/// How the work on one unit ended.
struct UnitResult {
  std::string file;
  UnitEnd end = UnitEnd::Done;
  std::string words;
};

/// What a person chose for a command.
struct CommandChoice {
  std::string comment;
  std::string label;
  bool withDescendants = false;
};

/// What became of a command.
struct CommandReport {
  std::size_t done = 0;
  bool wasCancelled = false;
  std::vector<UnitResult> failures{};
  std::vector<std::string> messages{};  ///< What was said about no unit in particular.
  bool isFine() const { return failures.empty() && messages.empty() && !wasCancelled; }
};

/// Remembers how the units of a batch end. The program's own progress hands the ends on to it.
class ResultCollector {
 public:
  void start() {
    m_results.clear();
    m_wasCancelled = false;
  }
  void cancelled() { m_wasCancelled = true; }
  bool wasCancelled() const { return m_wasCancelled; }
  void unitEnded(const ProgressStep& step, UnitEnd end, const std::string& words);
  const std::vector<UnitResult>& results() const { return m_results; }

 private:
  std::vector<UnitResult> m_results;
  bool m_wasCancelled = false;
};

/// Runs a command on units. Units may be other objects afterwards.
CommandReport runCommand(const CommandRow& row, UnitList units, const CommandChoice& choice,
                         Project& project, ResultCollector& collector);

/// Runs what works on no unit in particular: `call` gets the arguments and the diagnostics.
CommandReport runOnArchive(Project& project, ResultCollector& collector,
                           const std::function<void(ArgumentList&, DiagnosticList&)>& call);

/// Connects the project to its archive, which is made first when it is a folder that does not exist
/// and the tool can make one.
CommandReport connectToArchive(Project& project, ResultCollector& collector);

/// Why a unit's command came to nothing, in a sentence.
std::string reasonOf(const UnitResult& result);

}  // namespace veldra::host::desktop
