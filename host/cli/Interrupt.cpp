#include "host/cli/Interrupt.h"

#include <atomic>
#include <csignal>

namespace veldra::host::cli {

namespace {

std::atomic<bool> interrupted = false;
std::atomic<Processes*> target = nullptr;
static_assert(std::atomic<Processes*>::is_always_lock_free, "signal handlers must not lock");

extern "C" void onSignal(int number) {
  std::signal(number, SIG_DFL);
  interrupted = true;
  if (Processes* const processes = target) processes->requestCancel();
}

}  // namespace

void catchInterrupts() {
  std::signal(SIGINT, onSignal);
  std::signal(SIGTERM, onSignal);
}

bool wasInterrupted() {
  return interrupted;
}

InterruptTarget::InterruptTarget(Processes& processes) {
  target = &processes;
  // The signal may have come before there was anything to end.
  if (interrupted) processes.requestCancel();
}

InterruptTarget::~InterruptTarget() {
  target = nullptr;
}

}  // namespace veldra::host::cli
