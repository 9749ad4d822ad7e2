#include "host/cli/BatchProgress.h"

#include <utility>

#include "host/cli/Interrupt.h"
#include "host/cli/printing/BytesAsText.h"
#include "host/model/PathNames.h"
#include "host/platform/Secrets.h"

namespace veldra::host::cli {

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
