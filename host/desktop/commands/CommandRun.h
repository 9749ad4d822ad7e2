#pragma once

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
  std::vector<UnitResult> failures;
  std::vector<std::string> messages;  ///< What was said about no unit in particular.
  bool isFine() const { return failures.empty() && messages.empty() && !wasCancelled; }
};

/// Remembers how the units of a batch end. The program's own progress hands the ends on to it.
class ResultCollector {
 public:
  void start() { m_results.clear(); }
  void unitEnded(const ProgressStep& step, UnitEnd end, const std::string& words);
  const std::vector<UnitResult>& results() const { return m_results; }

 private:
  std::vector<UnitResult> m_results;
};

/// Runs a command on units. Units may be other objects afterwards.
CommandReport runCommand(const CommandRow& row, UnitList units, const CommandChoice& choice,
                         Project& project, ResultCollector& collector);

/// Connects the project to its archive.
CommandReport connectToArchive(Project& project, ResultCollector& collector);

/// Why a unit's command came to nothing, in a sentence.
std::string reasonOf(const UnitResult& result);

}  // namespace veldra::host::desktop
