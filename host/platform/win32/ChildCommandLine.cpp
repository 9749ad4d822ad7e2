#include "host/platform/win32/ChildCommandLine.h"

#include <algorithm>
#include <string_view>

#include "host/platform/CommandLine.h"
#include "host/platform/win32/WideText.h"

namespace veldra::host {

namespace {

bool isPlain(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
         std::string_view("-_./\\:=+,@").find(c) != std::string_view::npos;
}

}  // namespace

std::optional<std::wstring> childCommandLine(const std::vector<std::string>& arguments) {
  std::string line;
  for (const std::string& argument : arguments) {
    if (!line.empty()) line += ' ';
    const bool isSafe = !argument.empty() && std::ranges::all_of(argument, isPlain);
    if (line.empty()) {
      line += '"' + argument + '"';
    } else {
      line += isSafe ? argument : quotedArgument(argument);
    }
  }
  return toWide(line);
}

}  // namespace veldra::host
