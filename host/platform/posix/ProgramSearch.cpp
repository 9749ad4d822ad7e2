#include "host/platform/posix/ProgramSearch.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <string_view>

namespace veldra::host {

namespace {

enum class Found { Nothing, NotExecutable, Program };

Found look(const std::string& path) {
  struct stat status {};
  if (::stat(path.c_str(), &status) != 0) return Found::Nothing;
  if (!S_ISREG(status.st_mode) || ::access(path.c_str(), X_OK) != 0) return Found::NotExecutable;
  return Found::Program;
}

Result<std::string> notExecutable(const std::string& path) {
  return Result<std::string>::failure(
      "'" + path +
      "' is not an executable program. Give it the permission to be executed, or name " +
      "another program in the command template.");
}

Result<std::string> searchPath(const std::string& name) {
  const char* const variable = std::getenv("PATH");
  std::string_view rest = variable == nullptr ? "/usr/local/bin:/usr/bin:/bin" : variable;
  std::string candidate;
  std::string unusable;
  while (!rest.empty()) {
    const auto end = std::min(rest.find(':'), rest.size());
    const std::string_view directory = rest.substr(0, end);
    rest.remove_prefix(std::min(end + 1, rest.size()));
    if (!directory.starts_with('/')) continue;
    candidate.assign(directory).append("/").append(name);
    const Found found = look(candidate);
    if (found == Found::Program) return candidate;
    if (found == Found::NotExecutable && unusable.empty()) unusable = candidate;
  }
  if (!unusable.empty()) return notExecutable(unusable);
  return Result<std::string>::failure(
      "'" + name +
      "' was not found on PATH. Install it or name its full path in the command template.");
}

}  // namespace

Result<std::string> findProgram(const std::string& name) {
  if (name.empty()) return Result<std::string>::failure("The command names no program.");
  if (name.find('/') == std::string::npos) return searchPath(name);
  switch (look(name)) {
    case Found::Program:
      return name;
    case Found::NotExecutable:
      return notExecutable(name);
    case Found::Nothing:
      break;
  }
  return Result<std::string>::failure(
      "'" + name + "' does not exist. Install it or correct its path in the command template.");
}

}  // namespace veldra::host
