#include "cm/scc/CallbackThread.h"

#include <algorithm>
#include <mutex>
#include <thread>
#include <utility>
#include <vector>

namespace veldra {

namespace {

struct Step {
  std::function<void()> action;
  const void* place;
};

// Not part of the module's state: other threads come here at any time.
std::mutex theMutex;
std::thread::id callingThread;
int callDepth = 0;
std::vector<Step> kept;
std::vector<const void*> places;

bool keepIfForeign(Step& step) {
  const std::lock_guard lock(theMutex);
  if (callDepth > 0 && std::this_thread::get_id() == callingThread) return false;
  kept.push_back(std::move(step));
  return true;
}

bool isThere(const void* place) {
  const std::lock_guard lock(theMutex);
  return place == nullptr || std::ranges::find(places, place) != places.end();
}

void runQuietly(const Step& step) noexcept {
  try {
    if (isThere(step.place)) step.action();
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
  std::vector<Step> steps;
  {
    const std::lock_guard lock(theMutex);
    if (--callDepth == 0) steps.swap(kept);
  }
  for (const Step& step : steps) runQuietly(step);
}

CallbackThread::Place::Place(const void* data) {
  const std::lock_guard lock(theMutex);
  places.push_back(data);
}

CallbackThread::Place::~Place() {
  // The newest goes first: calls nest.
  const std::lock_guard lock(theMutex);
  places.pop_back();
}

void CallbackThread::run(std::function<void()> action, const void* place) noexcept {
  try {
    Step step{std::move(action), place};
    if (!keepIfForeign(step)) runQuietly(step);
  } catch (...) {
    // No memory to keep it.
  }
}

}  // namespace veldra
