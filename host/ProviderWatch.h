#pragma once

#include <atomic>
#include <chrono>
#include <functional>
#include <thread>
#include <utility>

namespace veldra::host {

/// Watches the calls into a source control provider from a thread of its own, because a call that
/// does not come back holds the thread that made it for ever.
class ProviderWatch {
 public:
  /// A server that answers at all answers within this; then people begin to wonder.
  static constexpr std::chrono::seconds Patience{10};

  struct Rules {
    std::chrono::milliseconds untilTold;     ///< A call of that length is told of, once.
    std::chrono::milliseconds untilGivenUp;  ///< So long a call may go on after an interrupt.
    std::function<void(const char* entryPoint)> tell;
    std::function<void(const char* entryPoint)> giveUp;
    std::function<bool()> isInterrupted;
  };

  /// The functions of `rules` are called on the watching thread.
  explicit ProviderWatch(Rules rules) : m_rules(std::move(rules)) {}
  ProviderWatch(const ProviderWatch&) = delete;
  ProviderWatch& operator=(const ProviderWatch&) = delete;

  /// Around every call, on one thread. `entryPoint` must stay valid, as literals do.
  void started(const char* entryPoint);
  void ended() { m_entryPoint = nullptr; }

 private:
  void watch(const std::stop_token& stop) const;

  Rules m_rules;
  std::atomic<const char*> m_entryPoint = nullptr;
  std::atomic<unsigned> m_call = 0;  ///< Tells two calls of the same entry point apart.
  std::jthread m_thread;             ///< Runs from the first call on.
};

}  // namespace veldra::host
