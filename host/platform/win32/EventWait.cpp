#include "host/platform/win32/EventWait.h"

#include <array>

namespace veldra::host {

EventWait::EventWait(ChildProcess& child, OutputPipe& output, OutputPipe& errors,
                     const CancelSignal& cancel, const ChildSettings& settings)
    : ChildWait(settings), m_child(child), m_output(output), m_errors(errors), m_cancel(cancel) {}

void EventWait::wait(int milliseconds) {
  std::array<HANDLE, 4> events{};
  DWORD count = 0;
  if (m_output.isOpen()) events.at(count++) = m_output.event();
  if (m_errors.isOpen()) events.at(count++) = m_errors.event();
  if (!hasEnded()) events.at(count++) = m_child.process();
  if (!isStopped()) events.at(count++) = m_cancel.event();
  const DWORD time = milliseconds < 0 ? INFINITE : static_cast<DWORD>(milliseconds);
  WaitForMultipleObjects(count, events.data(), FALSE, time);
  // Asked for before the outputs are looked at: what an ended child has printed is in them.
  const bool ended = !hasEnded() && WaitForSingleObject(m_child.process(), 0) == WAIT_OBJECT_0;
  this->count(m_output.take());
  this->count(m_errors.take());
  // Nobody asks for the rest of an output when there are error lines.
  if (m_errors.hasLines() && m_output.isFlood()) m_output.forgetFurther();
  if (ended) noticeEnd();
}

void EventWait::closeOutputs() {
  m_output.close();
  m_errors.close();
}

}  // namespace veldra::host
