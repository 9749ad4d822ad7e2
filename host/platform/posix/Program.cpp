#include "host/platform/Program.h"

#include <errno.h>
#include <signal.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
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

std::string programFolder() {
  std::error_code error;
  const auto program = std::filesystem::read_symlink("/proc/self/exe", error);
  return error ? std::string() : program.parent_path().string();
}

void addOwnFolderToPath() {
  const std::string folder = programFolder();
  const char* const path = std::getenv("PATH");
  if (folder.empty()) return;
  setVariable("PATH", path == nullptr ? folder.c_str() : (path + (":" + folder)).c_str());
}

bool canWriteInto(const std::string& folder) {
  return access(folder.c_str(), W_OK | X_OK) == 0;
}

bool belongsToUser(const std::string& path) {
  struct stat status {};
  return lstat(path.c_str(), &status) == 0 && status.st_uid == geteuid();
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
