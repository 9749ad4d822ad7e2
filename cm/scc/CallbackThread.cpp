#include "cm/scc/CallbackThread.h"

#include <mutex>
#include <thread>
#include <utility>
#include <vector>

namespace veldra {

namespace {

// Not part of the module's state: other threads come here at any time.
std::mutex theMutex;
std::thread::id callingThread;
int callDepth = 0;
std::vector<std::function<void()>> kept;

bool keepIfForeign(std::function<void()>& step) {
  const std::lock_guard lock(theMutex);
  if (callDepth > 0 && std::this_thread::get_id() == callingThread) return false;
  kept.push_back(std::move(step));
  return true;
}

void runQuietly(const std::function<void()>& step) noexcept {
  try {
    step();
  } catch (...) {
    // A callback's text or name is lost; a frame of the provider must not be unwound for it.
  }
}

}  // namespace

CallbackThread::Scope::Scope() {
  const std::lock_guard lock(theMutex);
  callingThread = std::this_thread::get_id();
  ++callDepth;
}

CallbackThread::Scope::~Scope() {
  std::vector<std::function<void()>> steps;
  {
    const std::lock_guard lock(theMutex);
    if (--callDepth == 0) steps.swap(kept);
  }
  for (const auto& step : steps) runQuietly(step);
}

void CallbackThread::run(std::function<void()> step) noexcept {
  try {
    if (!keepIfForeign(step)) runQuietly(step);
  } catch (...) {
    // No memory to keep it.
  }
}

}  // namespace veldra
