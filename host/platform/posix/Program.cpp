#include "host/platform/Program.h"

#include <errno.h>
#include <signal.h>
#include <stdlib.h>
#include <unistd.h>

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

void setVariable(const char* name, const char* value) {
  setenv(name, value, 1);
}

long processNumber() {
  return getpid();
}

bool isProcessAlive(long number) {
  return kill(static_cast<pid_t>(number), 0) == 0 || errno != ESRCH;
}

}  // namespace veldra::host
