#include "host/platform/ProgramSearch.h"

#include <algorithm>
#include <cstdlib>

#include "host/platform/Program.h"

namespace veldra::host {

namespace {

using Found = ProgramRules::Found;

Result<std::string> notExecutable(const std::string& path) {
  std::string sentence = "'" + path + "' ";
  return Result<std::string>::failure(sentence.append(programRules.whyNotExecutable));
}

/// Tries what a path may stand for. `unusable` gets the first file that is no program.
std::string tryPath(const std::string& path, std::string& unusable) {
  for (std::string& file : programRules.filesFor(path)) {
    const Found found = programRules.look(file);
    if (found == Found::Program) return std::move(file);
    if (found == Found::NotExecutable && unusable.empty()) unusable = std::move(file);
  }
  return {};
}

Result<std::string> searchPath(const std::string& name) {
  const char* const variable = std::getenv("PATH");
  std::string_view rest = variable == nullptr ? programRules.standardPath : variable;
  std::string unusable;
  while (!rest.empty()) {
    const auto end = std::min(rest.find(programRules.listSeparator), rest.size());
    const std::string directory(rest.substr(0, end));
    rest.remove_prefix(std::min(end + 1, rest.size()));
    if (!programRules.isAbsolute(directory)) continue;
    std::string program = tryPath(directory + "/" + name, unusable);
    if (!program.empty()) return program;
  }
  if (!unusable.empty()) return notExecutable(unusable);
  return Result<std::string>::failure(
      "'" + name +
      "' was not found on PATH. Install it or name its full path in the command template.");
}

}  // namespace

Result<std::string> findProgram(const std::string& name) {
  if (name.empty()) return Result<std::string>::failure("The command names no program.");
  if (name.find_first_of(programRules.pathSeparators) == std::string::npos) return searchPath(name);
  std::string unusable;
  std::string program = tryPath(name, unusable);
  if (!program.empty()) return program;
  if (!unusable.empty()) return notExecutable(unusable);
  return Result<std::string>::failure(
      "'" + name + "' does not exist. Install it or correct its path in the command template.");
}

std::string locateProgram(const std::string& name) {
  const Result<std::string> found = findProgram(name);
  return found ? *found : std::string();
}

}  // namespace veldra::host
