#pragma once

#include <condition_variable>
#include <exception>
#include <functional>
#include <mutex>
#include <thread>

#include "cm/host/CSignal2Exception.h"
#include "host/platform/FaultGuard.h"

namespace veldra::host::desktop {

/// Makes the calls of the source control provider on a thread of their own, so that one that does
/// not come back holds no window. It is always the same thread, because providers keep state of it.
/// Whoever calls waits all the same: the module goes on when the provider has answered.
class ProviderThread : public CSignal2Exception {
 public:
  /// `waiting` runs on the caller's thread, again and again as long as a call lasts; it must throw
  /// nothing.
  explicit ProviderThread(std::function<void()> waiting) : m_waiting(std::move(waiting)) {}
  ProviderThread(const ProviderThread&) = delete;
  ProviderThread& operator=(const ProviderThread&) = delete;
  /// No call may be under way.
  ~ProviderThread() override;

  /// The next guarded body is a call of the provider; all others stay on their caller's thread.
  void expectCall() { m_isCallNext = true; }
  void guard(const std::function<void()>& body) override;

 private:
  void makeCalls();
  bool isDoneWithin(std::chrono::milliseconds time);

  std::function<void()> m_waiting;
  FaultGuard m_faults;
  bool m_isCallNext = false;

  std::mutex m_mutex;
  std::condition_variable m_change;
  const std::function<void()>* m_body = nullptr;  ///< The call under way.
  std::exception_ptr m_fault;
  bool m_isEnding = false;
  std::thread m_thread;  ///< Runs from the first call on.
};

}  // namespace veldra::host::desktop
