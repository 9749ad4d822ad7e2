#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <optional>

#include "host/platform/Processes.h"

namespace veldra::host {

/// Waits for a running child until it has ended, and ends it when it must be. How the system is
/// asked lies in the room of each.
class ChildWait {
 public:
  /// Why a child was stopped before it ended by itself.
  enum class Stop { None, TimedOut, Cancelled, TooMuchOutput };

  virtual ~ChildWait() = default;
  ChildWait(const ChildWait&) = delete;
  ChildWait& operator=(const ChildWait&) = delete;

  /// `timeout` in milliseconds, or `RunThread::WaitForever`.
  Stop run(std::uint32_t timeout);

  /// True when the child, or what it left behind, had to be told to end.
  bool wasForced() const { return m_phase >= Phase::Terminating; }

 protected:
  explicit ChildWait(const ChildSettings& settings)
      : m_watch(settings.watch), m_room(settings.outputLimit) {}

  /// Waits until there is something to do, but no longer than this, and takes what the outputs
  /// have; then calls `noticeEnd` when the child has ended. -1 waits without end.
  virtual void wait(int milliseconds) = 0;
  virtual bool isCancelled() const = 0;
  /// Asks the child and all that it has started to end. False where that cannot be done.
  virtual bool askToEnd() = 0;
  virtual void kill() = 0;
  virtual bool isAnyOutputOpen() const = 0;
  virtual void closeOutputs() = 0;
  /// Set when the end of the child or a cancellation wakes nobody and has to be asked for.
  virtual bool mustAsk() const { return false; }

  bool hasEnded() const { return m_ended; }
  bool isStopped() const { return m_stop != Stop::None; }
  /// Counts what was taken from an output.
  void count(std::size_t bytes);
  void noticeEnd();

 private:
  using Clock = std::chrono::steady_clock;
  /// Running; the child has ended, its outputs are still held; told to end; killed; not waited for.
  enum class Phase { Running, Lingering, Terminating, Killed, GivenUp };
  struct Step;

  static const Step& stepOf(Phase phase);
  bool isDone() const;
  int longestWait() const;
  void noticeTimeAndCancel();
  void enter(Phase phase);
  void stop(Stop reason);

  ChildWatch* m_watch;
  std::size_t m_room;
  Phase m_phase = Phase::Running;
  Stop m_stop = Stop::None;
  bool m_ended = false;
  std::optional<Clock::time_point> m_deadline;
};

}  // namespace veldra::host
