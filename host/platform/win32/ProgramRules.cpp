#include <windows.h>

#include <algorithm>
#include <array>

#include "host/platform/FileNames.h"
#include "host/platform/ProgramSearch.h"
#include "host/platform/win32/WideText.h"

namespace veldra::host {

namespace {

using Found = ProgramRules::Found;

constexpr std::array<std::string_view, 2> ProgramEndings = {".exe", ".com"};

bool endsWith(std::string_view name, std::string_view ending) {
  if (name.size() < ending.size()) return false;
  const std::string_view last = name.substr(name.size() - ending.size());
  return std::ranges::equal(last, ending, [](char a, char b) {
    return (a >= 'A' && a <= 'Z' ? static_cast<char>(a - 'A' + 'a') : a) == b;
  });
}

bool isProgramName(std::string_view name) {
  return std::ranges::any_of(ProgramEndings,
                             [&](std::string_view ending) { return endsWith(name, ending); });
}

/// A name may have dots of its own, so each ending is tried before the name as it stands.
std::vector<std::string> filesFor(const std::string& name) {
  std::vector<std::string> files;
  if (!isProgramName(name)) {
    for (const std::string_view ending : ProgramEndings)
      files.push_back(std::string(name).append(ending));
  }
  files.push_back(name);
  return files;
}

Found look(const std::string& path) {
  const DWORD attributes = GetFileAttributesW(nativePath(path).c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES) return Found::Nothing;
  const bool isFolder = (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
  return isFolder || !isProgramName(path) ? Found::NotExecutable : Found::Program;
}

}  // namespace

// A batch file would be run by a shell, with that shell's rules for quotes and special characters
// on top of ours: a file name could become a command.
const ProgramRules programRules = {
    .listSeparator = ';',
    .pathSeparators = "/\\:",
    .standardPath = "C:\\Windows\\System32;C:\\Windows",
    .whyNotExecutable =
        "is not an executable program: its name ends neither with .exe nor with .com. Name "
        "another program in the command template; a script needs its interpreter before it.",
    .isAbsolute = isAbsoluteOnWindows,
    .filesFor = filesFor,
    .look = look,
};

}  // namespace veldra::host
