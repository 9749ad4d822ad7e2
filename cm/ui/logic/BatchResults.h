#pragma once

#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "cm/core/CMDiagnostic.h"
#include "cm/host/Export.h"
#include "cm/host/IProgress.h"

namespace veldra {

/// How the work on one unit ended.
struct UnitResult {
  std::string file;
  UnitEnd end = UnitEnd::Done;
  std::string words;  ///< What was said about a failure, or a remark.
};

/// Remembers how the units of a batch end. Whoever follows the progress hands the ends on to it.
class VELDRA_CM_EXPORT BatchResults {
 public:
  void start();
  void unitEnded(const ProgressStep& step, UnitEnd end, const std::string& words);
  void cancelled() { m_wasCancelled = true; }
  bool wasCancelled() const { return m_wasCancelled; }

  const std::vector<UnitResult>& all() const { return m_results; }
  /// Those that came to nothing, except what the user declined.
  std::set<std::string> failedFiles() const;
  /// What was remarked upon units that are done, a line each; empty for nothing.
  std::string remarks() const;
  /// Adds a line for each unit that came to nothing and of which no diagnostic speaks yet.
  void addFailures(DiagnosticList& diagnostics) const;

 private:
  std::vector<UnitResult> m_results;
  bool m_wasCancelled = false;
};

/// What an end means when nobody has words for it; empty for a good one.
VELDRA_CM_EXPORT std::string meaningOf(UnitEnd end);
/// The first lines that hold more than blanks, without the blanks around them.
VELDRA_CM_EXPORT std::string firstLines(std::string_view text, std::size_t count);
/// What of a tool's words says what is wrong; what follows is mostly its own trace.
VELDRA_CM_EXPORT std::string firstWords(const std::string& words);
/// The failures among the diagnostics that speak of none of these units.
VELDRA_CM_EXPORT std::vector<std::string> failuresOfNoUnit(const DiagnosticList& diagnostics,
                                                           const std::vector<UnitResult>& results);
/// Why the work on a unit came to nothing, in a sentence; of one that is done, what was remarked.
VELDRA_CM_EXPORT std::string reasonOf(const UnitResult& result);

}  // namespace veldra
