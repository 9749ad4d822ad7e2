#include "host/desktop/session/ProviderThread.h"

#include <chrono>
#include <utility>

namespace veldra::host::desktop {
namespace {

using namespace std::chrono_literals;

// Most calls are over before anybody could see a window stand still.
constexpr auto FirstStep = 30ms;
constexpr auto Step = 5ms;

}  // namespace

ProviderThread::~ProviderThread() {
  {
    const std::lock_guard lock(m_mutex);
    m_isEnding = true;
  }
  m_change.notify_all();
  if (m_thread.joinable()) m_thread.join();
}

void ProviderThread::guard(const std::function<void()>& body) {
  const bool isCall = std::exchange(m_isCallNext, false);
  if (!isCall || !isDoneWithin(0ms)) return m_faults.guard(body);
  if (!m_thread.joinable()) m_thread = std::thread([this] { makeCalls(); });
  {
    const std::lock_guard lock(m_mutex);
    m_body = &body;
    m_fault = nullptr;
  }
  m_change.notify_all();
  for (auto step = FirstStep; !isDoneWithin(step); step = Step) m_waiting();
  if (m_fault) std::rethrow_exception(m_fault);
}

bool ProviderThread::isDoneWithin(std::chrono::milliseconds time) {
  std::unique_lock lock(m_mutex);
  return m_change.wait_for(lock, time, [this] { return m_body == nullptr; });
}

void ProviderThread::makeCalls() {
  for (std::unique_lock lock(m_mutex);;) {
    m_change.wait(lock, [this] { return m_body != nullptr || m_isEnding; });
    if (m_body == nullptr) return;
    lock.unlock();
    std::exception_ptr fault;
    try {
      m_faults.guard(*m_body);
    } catch (...) {
      fault = std::current_exception();
    }
    lock.lock();
    m_fault = fault;
    m_body = nullptr;
    m_change.notify_all();
  }
}

}  // namespace veldra::host::desktop
