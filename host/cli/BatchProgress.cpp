#include "host/cli/BatchProgress.h"

#include <chrono>
#include <cstdlib>
#include <utility>

#include "host/cli/ExitCode.h"
#include "host/cli/Interrupt.h"
#include "host/cli/printing/BytesAsText.h"
#include "host/model/PathNames.h"
#include "host/platform/Secrets.h"

namespace veldra::host::cli {

namespace {

using namespace std::chrono_literals;

// What is under way may be a commit, which should rather end by itself.
constexpr auto Farewell = 5s;

void tellOfWaiting(Console& console, const char* entryPoint) {
  console.err << std::string("The source control provider has been busy in its function ") +
                     entryPoint + " for " + std::to_string(ProviderWatch::Patience.count()) +
                     " seconds. If it does not come back, Ctrl-C gives up.\n"
              << std::flush;
}

/// Nothing can take the call back, and its thread is the program's own.
[[noreturn]] void leaveCall(Console& console, const char* entryPoint) {
  console.err << std::string("Interrupted in the provider's function ") + entryPoint +
                     ", which does not come back. \"veldra-cm status\" shows where the units "
                     "stand; then give the same command again.\n"
              << std::flush;
  std::_Exit(static_cast<int>(ExitCode::Interrupted));
}

}  // namespace

BatchProgress::BatchProgress(Console& console, OutputWindow& window)
    : m_console(console),
      m_window(window),
      m_watch({.untilTold = ProviderWatch::Patience,
               .untilGivenUp = Farewell,
               .tell = [&console](const char* name) { tellOfWaiting(console, name); },
               .giveUp = [&console](const char* name) { leaveCall(console, name); },
               .isInterrupted = wasInterrupted}) {}

void BatchProgress::noteCommand(const std::string& command) {
  (m_isInUnit ? m_current.commands : m_otherCommands).push_back(withoutSecrets(command));
}

void BatchProgress::unitStarted(const ProgressStep& step) {
  m_isInUnit = true;
  m_current = UnitTrace{.file = step.unit};
  (void)m_window.take();
  if (!m_console.showsProgress) return;
  m_console.clearProgress();
  m_console.err << '[' << step.position << '/' << step.count << "] " << step.operation << "  "
                << textForPeople(baseName(step.unit)) << std::flush;
}

void BatchProgress::unitEnded(const ProgressStep& step, UnitEnd end, const std::string& words) {
  m_console.clearProgress();
  m_isInUnit = false;
  // Units that go to a provider together have all begun before the first one ends.
  m_current.file = step.unit;
  m_current.end = end;
  m_current.words = withoutSecrets(words);
  // One command has done several units before their turns.
  if (m_current.commands.empty() && end == UnitEnd::Done && !m_otherCommands.empty()) {
    m_current.commands.push_back(m_otherCommands.back());
  }
  m_current.output = m_window.take();
  m_traces.push_back(std::exchange(m_current, {}));
  if (m_listener) m_listener(m_traces.back());
}

bool BatchProgress::isCancelled() {
  return m_isStopped || wasInterrupted();
}

}  // namespace veldra::host::cli
