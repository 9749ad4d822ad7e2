#include "host/platform/posix/PolledWait.h"

#include <poll.h>
#include <signal.h>

#include <array>
#include <chrono>
#include <thread>

namespace veldra::host {

namespace {
// In this time a child fills no pipe.
constexpr std::chrono::milliseconds Gathering{1};
}  // namespace

PolledWait::PolledWait(ChildProcess& child, OutputPipe& output, OutputPipe& errors,
                       const CancelSignal& cancel, const ChildSettings& settings)
    : ChildWait(settings), m_child(child), m_output(output), m_errors(errors), m_cancel(cancel) {}

void PolledWait::wait(int milliseconds) {
  if (m_output.mayGather() || m_errors.mayGather()) std::this_thread::sleep_for(Gathering);
  // A negative descriptor is left out by `poll`.
  std::array<pollfd, 4> sources = {{{m_output.descriptor(), POLLIN, 0},
                                    {m_errors.descriptor(), POLLIN, 0},
                                    {hasEnded() ? -1 : m_child.descriptor(), POLLIN, 0},
                                    {isStopped() ? -1 : m_cancel.descriptor(), POLLIN, 0}}};
  if (::poll(sources.data(), sources.size(), milliseconds) < 0) {
    for (pollfd& source : sources) source.revents = 0;
  }
  if (sources[0].revents != 0) count(m_output.take(sources[0].revents));
  if (sources[1].revents != 0) count(m_errors.take(sources[1].revents));
  // Nobody asks for the rest of an output when there are error lines.
  if (m_errors.hasLines() && m_output.isFlood()) m_output.forgetFurther();
  const bool asked = !hasEnded() && m_child.descriptor() < 0 && m_child.hasEnded();
  if (!asked && sources[2].revents == 0) return;
  m_output.releaseChildEnd();
  m_errors.releaseChildEnd();
  noticeEnd();
}

bool PolledWait::askToEnd() {
  m_child.signalGroup(SIGTERM);
  return true;
}

void PolledWait::kill() {
  m_child.signalGroup(SIGKILL);
}

void PolledWait::closeOutputs() {
  m_output.close();
  m_errors.close();
}

bool PolledWait::mustAsk() const {
  return (m_child.descriptor() < 0 && !hasEnded()) || m_cancel.descriptor() < 0;
}

}  // namespace veldra::host
