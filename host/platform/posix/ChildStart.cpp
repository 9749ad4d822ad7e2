#include "host/platform/posix/ChildStart.h"

#include <errno.h>
#include <fcntl.h>
#include <signal.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace veldra::host {

namespace {

constexpr unsigned LastDescriptor = ~0U;

// Nobody ignores the real-time signals, which come after it.
constexpr int LastCommonSignal = 31;

/// Handlers go with the program that set them, but an ignored signal would stay ignored.
void restoreIgnoredSignals() {
  struct sigaction action {};
  for (int signal = 1; signal <= LastCommonSignal; ++signal) {
    if (::sigaction(signal, nullptr, &action) != 0 || action.sa_handler != SIG_IGN) continue;
    action.sa_handler = SIG_DFL;
    ::sigaction(signal, &action, nullptr);
  }
}

void closeAllAbove(int descriptor) {
  if (::syscall(SYS_close_range, static_cast<unsigned>(descriptor) + 1, LastDescriptor, 0) == 0) {
    return;
  }
  // Kernels before 5.9.
  const long most = ::sysconf(_SC_OPEN_MAX);
  for (int open = descriptor + 1; open < most; ++open) ::close(open);
}

/// In the child, in the parent's memory: nothing but system calls. Comes back only with an error.
int becomeProgram(const ChildStart& start) {
  restoreIgnoredSignals();
  if ((start.ownSession ? ::setsid() : ::setpgid(0, 0)) < 0) return errno;
  ::close(STDIN_FILENO);
  if (::open("/dev/null", O_RDONLY) != STDIN_FILENO || ::dup2(start.output, STDOUT_FILENO) < 0 ||
      ::dup2(start.errors, STDERR_FILENO) < 0) {
    return errno;
  }
  closeAllAbove(STDERR_FILENO);
  sigset_t none;
  sigemptyset(&none);
  ::sigprocmask(SIG_SETMASK, &none, nullptr);
  ::execve(start.program, start.arguments, start.environment);
  return errno;
}

}  // namespace

int startChild(const ChildStart& start, pid_t& process) {
  // A handler that ran in the child would run on the parent's memory.
  sigset_t all;
  sigset_t before;
  sigfillset(&all);
  ::pthread_sigmask(SIG_SETMASK, &all, &before);
  volatile int failure = 0;
  const pid_t child = ::vfork();
  if (child == 0) {
    failure = becomeProgram(start);
    ::_exit(127);
  }
  const int error = child < 0 ? errno : failure;
  ::pthread_sigmask(SIG_SETMASK, &before, nullptr);
  process = child;
  return error;
}

}  // namespace veldra::host
