#pragma once

#include <set>
#include <string>
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

/// Why the work on a unit came to nothing, in a sentence; of one that is done, what was remarked.
VELDRA_CM_EXPORT std::string reasonOf(const UnitResult& result);

}  // namespace veldra
