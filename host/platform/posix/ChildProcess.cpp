#include "host/platform/posix/ChildProcess.h"

#include <errno.h>
#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <string_view>
#include <utility>

#include "host/platform/posix/ChildStart.h"

namespace veldra::host {

namespace {

// How long an end by the kill signal may take; a process that is stuck in the system takes longer.
constexpr int KillMilliseconds = 1000;

/// Where there is a terminal, a group of its own is not enough: a tool that asks for a password
/// there would be stopped and hang, while in a session of its own it fails. Elsewhere the session
/// would only cost time, because the Linux scheduler lets each new one begin at the end of the
/// queue.
bool haveTerminal() {
  static pid_t askedIn = 0;
  static bool have = false;
  // A session keeps the terminal that it began with.
  if (const pid_t session = ::getsid(0); session != std::exchange(askedIn, session)) {
    have = static_cast<bool>(FileDescriptor(::open("/dev/tty", O_RDONLY | O_NOCTTY | O_CLOEXEC)));
  }
  return have;
}

/// This process's environment with some variables set or replaced.
class ChildEnvironment {
 public:
  explicit ChildEnvironment(const std::map<std::string, std::string>& variables) {
    if (variables.empty()) return;
    m_texts.reserve(variables.size());
    for (const auto& [name, value] : variables) m_texts.push_back(name + '=' + value);
    for (char** entry = environ; *entry != nullptr; ++entry) {
      const std::string_view text(*entry);
      if (!variables.contains(std::string(text.substr(0, text.find('='))))) {
        m_entries.push_back(*entry);
      }
    }
    for (std::string& text : m_texts) m_entries.push_back(text.data());
    m_entries.push_back(nullptr);
  }
  char* const* get() const { return m_entries.empty() ? environ : m_entries.data(); }

 private:
  std::vector<std::string> m_texts;
  std::vector<char*> m_entries;
};

}  // namespace

ChildProcess::~ChildProcess() {
  if (m_process > 0) finish(true);
}

int ChildProcess::start(const std::string& program, std::vector<std::string>& arguments,
                        const std::map<std::string, std::string>& environment, int output,
                        int errors) {
  std::vector<char*> pointers;
  pointers.reserve(arguments.size() + 1);
  for (std::string& argument : arguments) pointers.push_back(argument.data());
  pointers.push_back(nullptr);
  const ChildEnvironment variables(environment);
  pid_t process = 0;
  const int error = startChild({.program = program.c_str(),
                                .arguments = pointers.data(),
                                .environment = variables.get(),
                                .output = output,
                                .errors = errors,
                                .ownSession = haveTerminal()},
                               process);
  if (error != 0) {
    // A child that could not become the program has ended.
    if (process > 0) ::waitpid(process, nullptr, 0);
    return error;
  }
  m_process = process;
  // Debian 12's header declares the function without C linkage.
  m_descriptor.reset(static_cast<int>(::syscall(SYS_pidfd_open, process, 0)));
  return 0;
}

bool ChildProcess::hasEnded() const {
  siginfo_t info{};
  const int result =
      ::waitid(P_PID, static_cast<id_t>(m_process), &info, WEXITED | WNOHANG | WNOWAIT);
  // A child that is not ours to wait for has been reaped behind our back.
  return result != 0 ? errno == ECHILD : info.si_pid != 0;
}

void ChildProcess::signalGroup(int signal) const {
  ::kill(-m_process, signal);
}

ChildStatus ChildProcess::finish(bool endGroup) {
  if (endGroup) {
    signalGroup(SIGKILL);
    pollfd ended{m_descriptor.get(), POLLIN, 0};
    while (!hasEnded() && (::poll(&ended, 1, KillMilliseconds) < 0 && errno == EINTR)) {
    }
  }
  int status = 0;
  pid_t reaped = 0;
  do {
    reaped = ::waitpid(m_process, &status, WNOHANG);
  } while (reaped < 0 && errno == EINTR);
  m_process = 0;
  if (reaped <= 0) return {};
  if (WIFEXITED(status)) return {ChildStatus::Kind::Exited, WEXITSTATUS(status)};
  return {ChildStatus::Kind::Crashed, WTERMSIG(status)};
}

}  // namespace veldra::host
