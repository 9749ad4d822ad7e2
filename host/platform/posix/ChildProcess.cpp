#include "host/platform/posix/ChildProcess.h"

#include <errno.h>
#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <spawn.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <string_view>

namespace veldra::host {

namespace {

// How long an end by the kill signal may take; a process that is stuck in the system takes longer.
constexpr int KillMilliseconds = 1000;

/// The descriptors of the child: nothing to read, its two outputs, and no other.
class FileActions {
 public:
  FileActions(int output, int errors) {
    posix_spawn_file_actions_init(&m_actions);
    posix_spawn_file_actions_addopen(&m_actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_adddup2(&m_actions, output, STDOUT_FILENO);
    posix_spawn_file_actions_adddup2(&m_actions, errors, STDERR_FILENO);
    posix_spawn_file_actions_addclosefrom_np(&m_actions, STDERR_FILENO + 1);
  }
  ~FileActions() { posix_spawn_file_actions_destroy(&m_actions); }
  FileActions(const FileActions&) = delete;
  FileActions& operator=(const FileActions&) = delete;
  const posix_spawn_file_actions_t* get() const { return &m_actions; }

 private:
  posix_spawn_file_actions_t m_actions;
};

/// Where there is a terminal, a group of its own is not enough: a tool that asks for a password
/// there would be stopped and hang, while in a session of its own it fails. Elsewhere the session
/// would only cost time, because the Linux scheduler lets each new one begin at the end of the
/// queue.
bool haveTerminal() {
  const FileDescriptor terminal(::open("/dev/tty", O_RDONLY | O_NOCTTY | O_CLOEXEC));
  return static_cast<bool>(terminal);
}

class Attributes {
 public:
  Attributes() {
    posix_spawnattr_init(&m_attributes);
    const int apart = haveTerminal() ? POSIX_SPAWN_SETSID : POSIX_SPAWN_SETPGROUP;
    posix_spawnattr_setflags(
        &m_attributes, static_cast<short>(apart | POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETSIGMASK));
    sigset_t signals;
    sigemptyset(&signals);
    posix_spawnattr_setsigmask(&m_attributes, &signals);
    sigfillset(&signals);
    posix_spawnattr_setsigdefault(&m_attributes, &signals);
  }
  ~Attributes() { posix_spawnattr_destroy(&m_attributes); }
  Attributes(const Attributes&) = delete;
  Attributes& operator=(const Attributes&) = delete;
  const posix_spawnattr_t* get() const { return &m_attributes; }

 private:
  posix_spawnattr_t m_attributes;
};

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
  const FileActions actions(output, errors);
  const Attributes attributes;
  const ChildEnvironment variables(environment);
  pid_t process = 0;
  const int error = ::posix_spawn(&process, program.c_str(), actions.get(), attributes.get(),
                                  pointers.data(), variables.get());
  if (error != 0) return error;
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
  return {ChildStatus::Kind::Signalled, WTERMSIG(status)};
}

}  // namespace veldra::host
