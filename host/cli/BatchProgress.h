#pragma once

#include <functional>
#include <string>
#include <vector>

#include "cm/host/IProgress.h"
#include "host/ProviderWatch.h"
#include "host/cli/Console.h"
#include "host/cli/OutputWindow.h"

namespace veldra::host::cli {

/// How one unit fared, as the module reported it.
struct UnitTrace {
  std::string file;  ///< The full name of the file, or an item's path.
  UnitEnd end = UnitEnd::Done;
  std::string words{};                  ///< What was said about a failure, or a remark.
  std::vector<std::string> commands{};  ///< The command lines that were run for it.
  std::string output{};                 ///< What the output window got meanwhile.
};

/// Follows a batch: draws the progress on a terminal and remembers how each unit ended.
class BatchProgress : public IProgress {
 public:
  using Listener = std::function<void(const UnitTrace&)>;

  BatchProgress(Console& console, OutputWindow& window);

  /// Told each unit as it ends.
  void setListener(Listener listener) { m_listener = std::move(listener); }
  /// A command line is about to run.
  void noteCommand(const std::string& command);
  /// The user wants no further units.
  void stop() { m_isStopped = true; }

  const std::vector<UnitTrace>& traces() const { return m_traces; }
  /// The command lines that were run outside of any unit.
  const std::vector<std::string>& otherCommands() const { return m_otherCommands; }

  void unitStarted(const ProgressStep& step) override;
  void unitEnded(const ProgressStep& step, UnitEnd end, const std::string& words) override;
  void providerCallStarted(const char* entryPoint) override { m_watch.started(entryPoint); }
  void providerCallEnded() override { m_watch.ended(); }
  bool isCancelled() override;

 private:
  Console& m_console;
  OutputWindow& m_window;
  Listener m_listener;
  bool m_isStopped = false;
  bool m_isInUnit = false;
  UnitTrace m_current;
  std::vector<UnitTrace> m_traces;
  std::vector<std::string> m_otherCommands;
  ProviderWatch m_watch;
};

}  // namespace veldra::host::cli
