#include "host/platform/Program.h"

#include <errno.h>
#include <signal.h>
#include <stdlib.h>
#include <unistd.h>

#include <fstream>
#include <string>

namespace veldra::host {

bool isTerminal(StandardStream stream) {
  switch (stream) {
    case StandardStream::Input:
      return isatty(STDIN_FILENO) != 0;
    case StandardStream::Output:
      return isatty(STDOUT_FILENO) != 0;
    case StandardStream::Error:
      return isatty(STDERR_FILENO) != 0;
  }
  return false;
}

void prepareTerminal() {}

void setVariable(const char* name, const char* value) {
  value ? setenv(name, value, 1) : unsetenv(name);
}

bool canWriteInto(const std::string& folder) {
  return access(folder.c_str(), W_OK | X_OK) == 0;
}

long processNumber() {
  return getpid();
}

bool isProcessAlive(long number) {
  if (kill(static_cast<pid_t>(number), 0) != 0) return errno != ESRCH;
  // One that has ended keeps its number until its parent asks; some containers never do.
  std::ifstream status("/proc/" + std::to_string(number) + "/stat");
  std::string line;
  std::getline(status, line);
  const std::size_t name = line.rfind(')');
  return name == std::string::npos || line.compare(name, 3, ") Z") != 0;
}

}  // namespace veldra::host
