#include "host/ProviderWatch.h"

#include <algorithm>
#include <condition_variable>
#include <mutex>

namespace veldra::host {

namespace {

using Clock = std::chrono::steady_clock;

// Calls are many and mostly short, so they are looked at now and then rather than waited for.
constexpr std::chrono::milliseconds LongestStep{50};

}  // namespace

void ProviderWatch::started(const char* entryPoint) {
  m_call.fetch_add(1, std::memory_order_relaxed);
  m_entryPoint = entryPoint;
  if (!m_thread.joinable()) {
    m_thread = std::jthread([this](const std::stop_token& stop) { watch(stop); });
  }
}

void ProviderWatch::watch(const std::stop_token& stop) const {
  const std::chrono::milliseconds step =
      std::min({LongestStep, m_rules.untilTold, m_rules.untilGivenUp});
  unsigned call = 0;
  bool isTold = false;
  Clock::time_point since;
  Clock::time_point interrupted;
  std::mutex mutex;
  std::condition_variable_any alarm;
  std::unique_lock lock(mutex);
  for (; !stop.stop_requested(); alarm.wait_for(lock, stop, step, [] { return false; })) {
    const char* const entryPoint = m_entryPoint;
    const Clock::time_point now = Clock::now();
    if (!m_rules.isInterrupted()) interrupted = now;
    if (entryPoint == nullptr || call != m_call) {
      call = m_call;
      isTold = false;
      since = now;
      interrupted = now;
      continue;
    }
    if (!isTold && now - since >= m_rules.untilTold) {
      isTold = true;
      m_rules.tell(entryPoint);
    }
    if (now - interrupted >= m_rules.untilGivenUp) m_rules.giveUp(entryPoint);
  }
}

}  // namespace veldra::host
