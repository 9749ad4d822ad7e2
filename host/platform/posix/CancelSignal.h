#pragma once

#include <atomic>

#include "host/platform/posix/FileDescriptor.h"

namespace veldra::host {

/// A request to stop, raised from a signal handler or another thread, that `poll` can wait for.
class CancelSignal {
 public:
  CancelSignal();

  /// Async-signal-safe.
  void raise() noexcept;
  bool isRaised() const noexcept { return m_raised.load(); }
  void clear() noexcept;

  /// Readable while raised; -1 when the system had no descriptor left, then `isRaised` has to be
  /// asked.
  int descriptor() const { return m_reader.get(); }

 private:
  static_assert(std::atomic<bool>::is_always_lock_free);

  std::atomic<bool> m_raised{false};
  FileDescriptor m_reader;
  FileDescriptor m_writer;
};

}  // namespace veldra::host
