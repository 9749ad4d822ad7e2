#include "providers/subversion/runtime/BrokenPipeShield.h"

#ifndef _WIN32

#include <ctime>

namespace veldra::subversion {
namespace {

sigset_t brokenPipe() {
  sigset_t signals;
  sigemptyset(&signals);
  sigaddset(&signals, SIGPIPE);
  return signals;
}

bool isPending() {
  sigset_t pending;
  sigemptyset(&pending);
  sigpending(&pending);
  return sigismember(&pending, SIGPIPE) == 1;
}

}  // namespace

BrokenPipeShield::BrokenPipeShield() : m_before{}, m_wasPending(isPending()) {
  const sigset_t signals = brokenPipe();
  pthread_sigmask(SIG_BLOCK, &signals, &m_before);
}

BrokenPipeShield::~BrokenPipeShield() {
  // What was raised in between must not be delivered once the signal is let through again.
  if (!m_wasPending && isPending()) {
    const sigset_t signals = brokenPipe();
    const timespec now{};
    sigtimedwait(&signals, nullptr, &now);
  }
  pthread_sigmask(SIG_SETMASK, &m_before, nullptr);
}

}  // namespace veldra::subversion

#else

namespace veldra::subversion {
BrokenPipeShield::BrokenPipeShield() = default;
BrokenPipeShield::~BrokenPipeShield() = default;
}  // namespace veldra::subversion

#endif
