#include "host/platform/ChildWait.h"

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

/// How long a phase lasts at most, and what follows.
struct ChildWait::Step {
  Phase phase;
  milliseconds time;
  Phase next;
};

const ChildWait::Step& ChildWait::stepOf(Phase phase) {
  static constexpr std::array<Step, 5> Steps = {{
      {Phase::Running, milliseconds(0), Phase::Terminating},
      {Phase::Lingering, milliseconds(200), Phase::Terminating},
      {Phase::Terminating, milliseconds(500), Phase::Killed},
      {Phase::Killed, milliseconds(1000), Phase::GivenUp},
      {Phase::GivenUp, milliseconds(0), Phase::GivenUp},
  }};
  return Steps[static_cast<std::size_t>(phase)];
}

ChildWait::Stop ChildWait::run(std::uint32_t timeout) {
  if (timeout != RunThread::WaitForever) m_deadline = Clock::now() + milliseconds(timeout);
  while (!isDone()) {
    wait(longestWait());
    noticeTimeAndCancel();
    if (m_watch) m_watch->waiting();
  }
  return m_stop;
}

bool ChildWait::isDone() const {
  if (!m_ended) return m_phase == Phase::GivenUp;
  // After the kill, only what has left the group can still hold the outputs.
  return m_phase >= Phase::Killed || !isAnyOutputOpen();
}

int ChildWait::longestWait() const {
  const int most = mustAsk() ? AskingMilliseconds : m_watch ? WatchMilliseconds : INT_MAX;
  if (!m_deadline) return most == INT_MAX ? -1 : most;
  const auto left = std::chrono::ceil<milliseconds>(*m_deadline - Clock::now()).count();
  return static_cast<int>(std::clamp<std::int64_t>(left, 0, most));
}

void ChildWait::noticeEnd() {
  m_ended = true;
  // What the child itself has printed is in the pipes, and the next round takes all of it, before
  // it looks at the time.
  if (m_phase == Phase::Running) enter(Phase::Lingering);
}

void ChildWait::noticeTimeAndCancel() {
  if (isDone()) return;
  if (m_stop == Stop::None && isCancelled()) stop(Stop::Cancelled);
  if (!m_deadline || Clock::now() < *m_deadline) return;
  if (m_phase == Phase::Running) {
    stop(Stop::TimedOut);
  } else {
    enter(stepOf(m_phase).next);
  }
}

void ChildWait::enter(Phase phase) {
  if (phase == Phase::Terminating && !askToEnd()) phase = Phase::Killed;
  if (phase == Phase::Killed) kill();
  m_phase = phase;
  m_deadline = Clock::now() + stepOf(phase).time;
}

void ChildWait::stop(Stop reason) {
  m_stop = reason;
  if (!wasForced()) enter(Phase::Terminating);
}

void ChildWait::count(std::size_t bytes) {
  if (bytes <= m_room) {
    m_room -= bytes;
    return;
  }
  // A flood that goes on while the child is being ended must not be kept either.
  closeOutputs();
  if (m_stop == Stop::None) stop(Stop::TooMuchOutput);
}

}  // namespace veldra::host
