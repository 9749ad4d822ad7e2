#include "host/platform/posix/OutputCollector.h"

#include <poll.h>
#include <signal.h>

#include <algorithm>
#include <array>
#include <climits>

namespace veldra::host {

namespace {

using std::chrono::milliseconds;

// Where the end of a child, or a cancellation, cannot be waited for, it is asked for this often.
constexpr int AskingMilliseconds = 10;
// Often enough for a window to look alive.
constexpr int WatchMilliseconds = 33;

}  // namespace

/// What entering a phase does, how long it lasts at most, and what follows.
struct OutputCollector::Step {
  Phase phase;
  int signal;
  milliseconds time;
  Phase next;
};

const OutputCollector::Step& OutputCollector::stepOf(Phase phase) {
  static constexpr std::array<Step, 5> Steps = {{
      {Phase::Running, 0, milliseconds(0), Phase::Terminating},
      {Phase::Lingering, 0, milliseconds(200), Phase::Terminating},
      {Phase::Terminating, SIGTERM, milliseconds(500), Phase::Killed},
      {Phase::Killed, SIGKILL, milliseconds(1000), Phase::GivenUp},
      {Phase::GivenUp, 0, milliseconds(0), Phase::GivenUp},
  }};
  return Steps[static_cast<std::size_t>(phase)];
}

OutputCollector::OutputCollector(ChildProcess& child, OutputPipe& output, OutputPipe& errors,
                                 const CancelSignal& cancel, const ChildSettings& settings)
    : m_child(child),
      m_output(output),
      m_errors(errors),
      m_cancel(cancel),
      m_watch(settings.watch),
      m_room(settings.outputLimit) {}

OutputCollector::Stop OutputCollector::run(std::uint32_t timeout) {
  if (timeout != RunThread::WaitForever) m_deadline = Clock::now() + milliseconds(timeout);
  while (!isDone()) {
    wait();
    if (m_watch) m_watch->waiting();
  }
  return m_stop;
}

bool OutputCollector::isDone() const {
  if (!m_ended) return m_phase == Phase::GivenUp;
  // After the kill, only what has left the group can still hold the outputs.
  return m_phase >= Phase::Killed || (!m_output.isOpen() && !m_errors.isOpen());
}

void OutputCollector::wait() {
  // A negative descriptor is left out by `poll`.
  std::array<pollfd, 4> sources = {
      {{m_output.descriptor(), POLLIN, 0},
       {m_errors.descriptor(), POLLIN, 0},
       {m_ended ? -1 : m_child.descriptor(), POLLIN, 0},
       {m_stop == Stop::None ? m_cancel.descriptor() : -1, POLLIN, 0}}};
  if (::poll(sources.data(), sources.size(), pollTimeout()) < 0) {
    for (pollfd& source : sources) source.revents = 0;
  }
  if (sources[0].revents != 0) count(m_output.take(sources[0].revents));
  if (sources[1].revents != 0) count(m_errors.take(sources[1].revents));
  // Nobody asks for the rest of an output when there are error lines.
  if (m_errors.hasLines() && m_output.isFlood()) m_output.forgetFurther();
  const bool asked = !m_ended && m_child.descriptor() < 0 && m_child.hasEnded();
  if (asked || sources[2].revents != 0) noticeEnd();
  noticeTimeAndCancel();
}

int OutputCollector::pollTimeout() const {
  const bool ask = (m_child.descriptor() < 0 && !m_ended) || m_cancel.descriptor() < 0;
  const int most = ask ? AskingMilliseconds : m_watch ? WatchMilliseconds : INT_MAX;
  if (!m_deadline) return most == INT_MAX ? -1 : most;
  const auto left = std::chrono::ceil<milliseconds>(*m_deadline - Clock::now()).count();
  return static_cast<int>(std::clamp<std::int64_t>(left, 0, most));
}

void OutputCollector::noticeEnd() {
  m_ended = true;
  m_output.releaseChildEnd();
  m_errors.releaseChildEnd();
  // What the child itself has printed is in the pipes, and the next round takes all of it, before
  // it looks at the time.
  if (m_phase == Phase::Running) enter(Phase::Lingering);
}

void OutputCollector::noticeTimeAndCancel() {
  if (isDone()) return;
  if (m_stop == Stop::None && m_cancel.isRaised()) stop(Stop::Cancelled);
  if (!m_deadline || Clock::now() < *m_deadline) return;
  if (m_phase == Phase::Running) {
    stop(Stop::TimedOut);
  } else {
    enter(stepOf(m_phase).next);
  }
}

void OutputCollector::enter(Phase phase) {
  m_phase = phase;
  const Step& step = stepOf(phase);
  if (step.signal != 0) m_child.signalGroup(step.signal);
  m_deadline = Clock::now() + step.time;
}

void OutputCollector::stop(Stop reason) {
  m_stop = reason;
  if (!wasForced()) enter(Phase::Terminating);
}

void OutputCollector::count(std::size_t bytes) {
  if (bytes <= m_room) {
    m_room -= bytes;
    return;
  }
  // A flood that goes on while the child is being ended must not be kept either.
  m_output.close();
  m_errors.close();
  if (m_stop == Stop::None) stop(Stop::TooMuchOutput);
}

}  // namespace veldra::host
