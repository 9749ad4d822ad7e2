#include <sys/stat.h>
#include <unistd.h>

#include "host/platform/ProgramSearch.h"

namespace veldra::host {

namespace {

using Found = ProgramRules::Found;

bool isAbsolute(std::string_view directory) {
  return directory.starts_with('/');
}

std::vector<std::string> filesFor(const std::string& name) {
  return {name};
}

Found look(const std::string& path) {
  struct stat status {};
  if (::stat(path.c_str(), &status) != 0) return Found::Nothing;
  if (!S_ISREG(status.st_mode) || ::access(path.c_str(), X_OK) != 0) return Found::NotExecutable;
  return Found::Program;
}

}  // namespace

const ProgramRules programRules = {
    .listSeparator = ':',
    .pathSeparators = "/",
    .standardPath = "/usr/local/bin:/usr/bin:/bin",
    .whyNotExecutable =
        "is not an executable program. Give it the permission to be executed, or name another "
        "program in the command template.",
    .isAbsolute = isAbsolute,
    .filesFor = filesFor,
    .look = look,
};

}  // namespace veldra::host
