// Starting a program that lives on by itself.

#include <errno.h>
#include <fcntl.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <vector>

#include "host/platform/CommandLine.h"
#include "host/platform/Processes.h"
#include "host/platform/ProgramSearch.h"
#include "host/platform/posix/FileDescriptor.h"

namespace veldra::host {

namespace {

/// In the child's child, which the system gives another parent. Comes back only with an error.
int becomeProgram(const char* program, char* const* arguments) {
  ::setsid();
  sigset_t none;
  sigemptyset(&none);
  ::sigprocmask(SIG_SETMASK, &none, nullptr);
  ::signal(SIGPIPE, SIG_DFL);
  ::execv(program, arguments);
  return errno;
}

/// Between fork and the new program nothing but system calls: other threads held what they held.
[[noreturn]] void leaveGrandchild(int failures, const char* program, char* const* arguments) {
  const pid_t grandchild = ::fork();
  if (grandchild <= 0) {
    const int error = grandchild == 0 ? becomeProgram(program, arguments) : errno;
    [[maybe_unused]] const ssize_t told = ::write(failures, &error, sizeof(error));
  }
  ::_exit(0);
}

/// True when the program runs: then the pipe closes without a word.
bool startsWell(const char* program, char* const* arguments) {
  int ends[2] = {-1, -1};
  if (::pipe2(ends, O_CLOEXEC) != 0) return false;
  FileDescriptor reading(ends[0]);
  FileDescriptor writing(ends[1]);
  const pid_t child = ::fork();
  if (child == 0) leaveGrandchild(writing.get(), program, arguments);
  writing.reset();
  if (child < 0) return false;
  while (::waitpid(child, nullptr, 0) < 0 && errno == EINTR) {
  }
  int error = 0;
  ssize_t got = 0;
  do {
    got = ::read(reading.get(), &error, sizeof(error));
  } while (got < 0 && errno == EINTR);
  return got == 0;
}

}  // namespace

bool Processes::startDetached(const std::string& command) {
  Result<std::vector<std::string>> arguments = splitCommandLine(command);
  if (!arguments || arguments->empty()) return false;
  const Result<std::string> program = findProgram(arguments->front());
  if (!program) return false;
  std::vector<char*> pointers;
  for (std::string& argument : *arguments) pointers.push_back(argument.data());
  pointers.push_back(nullptr);
  return startsWell(program->c_str(), pointers.data());
}

}  // namespace veldra::host
