#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <optional>

#include "host/platform/posix/CancelSignal.h"
#include "host/platform/posix/ChildProcess.h"
#include "host/platform/posix/OutputPipe.h"

namespace veldra::host {

/// Reads both outputs of a running child until it has ended, and ends it when it must be.
class OutputCollector {
 public:
  /// Why a child was stopped before it ended by itself.
  enum class Stop { None, TimedOut, Cancelled, TooMuchOutput };

  OutputCollector(ChildProcess& child, OutputPipe& output, OutputPipe& errors,
                  const CancelSignal& cancel, const ChildSettings& settings);

  /// `timeout` in milliseconds, or `RunThread::WaitForever`.
  Stop run(std::uint32_t timeout);

  /// True when the child, or what it left behind, had to be told to end.
  bool wasForced() const { return m_phase >= Phase::Terminating; }

 private:
  using Clock = std::chrono::steady_clock;
  /// Running; the child has ended, its outputs are still held; told to end; killed; not waited for.
  enum class Phase { Running, Lingering, Terminating, Killed, GivenUp };
  struct Step;

  static const Step& stepOf(Phase phase);
  bool isDone() const;
  void wait();
  int pollTimeout() const;
  void noticeEnd();
  void noticeTimeAndCancel();
  void enter(Phase phase);
  void stop(Stop reason);
  void count(std::size_t bytes);

  ChildProcess& m_child;
  OutputPipe& m_output;
  OutputPipe& m_errors;
  const CancelSignal& m_cancel;
  ChildWatch* m_watch;
  std::size_t m_room;
  Phase m_phase = Phase::Running;
  Stop m_stop = Stop::None;
  bool m_ended = false;
  std::optional<Clock::time_point> m_deadline;
};

}  // namespace veldra::host
