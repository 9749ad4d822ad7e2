#include "host/platform/FileNames.h"

#include <algorithm>
#include <array>

namespace veldra::host {

namespace {

constexpr std::string_view PathSeparators = "/\\";
constexpr std::array<std::string_view, 6> Devices = {"con", "prn",    "aux",
                                                     "nul", "conin$", "conout$"};
constexpr std::array<std::string_view, 2> NumberedDevices = {"com", "lpt"};

bool isSeparator(char c) {
  return PathSeparators.find(c) != std::string_view::npos;
}

char lowerLetter(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool startsWithDrive(std::string_view path) {
  return path.size() >= 2 && path[1] == ':' && lowerLetter(path[0]) >= 'a' &&
         lowerLetter(path[0]) <= 'z';
}

/// A device keeps its name whatever extension follows.
bool namesDevice(std::string_view part) {
  std::string stem(part.substr(0, part.find('.')));
  stem.erase(stem.find_last_not_of(' ') + 1);
  std::ranges::transform(stem, stem.begin(), lowerLetter);
  if (std::ranges::find(Devices, stem) != Devices.end()) return true;
  const bool isNumbered = stem.size() == 4 && stem[3] >= '1' && stem[3] <= '9';
  return isNumbered && std::ranges::find(NumberedDevices, std::string_view(stem).substr(0, 3)) !=
                           NumberedDevices.end();
}

bool isForbidden(char c) {
  return static_cast<unsigned char>(c) < ' ' ||
         std::string_view("<>:\"|?*").find(c) != std::string_view::npos;
}

/// What is wrong with one part of a path; empty when nothing is.
std::string_view problemOf(std::string_view part) {
  if (part.empty() || part == "." || part == "..") return {};
  if (namesDevice(part)) return "is the name of a device on Windows";
  if (part.back() == '.' || part.back() == ' ')
    return "ends with a dot or a blank, which Windows would drop";
  if (std::ranges::any_of(part, isForbidden))
    return "has a character that no file name may have on Windows";
  return {};
}

/// Takes what stands before the first name: the sign of the form without a limit, and the drive.
std::string_view withoutRoot(std::string_view path) {
  if (path.starts_with("\\\\?\\")) path.remove_prefix(4);
  if (startsWithDrive(path)) path.remove_prefix(2);
  return path;
}

}  // namespace

std::optional<std::string> windowsNameProblem(std::string_view path) {
  std::string_view rest = withoutRoot(path);
  while (!rest.empty()) {
    const std::size_t end = std::min(rest.find_first_of(PathSeparators), rest.size());
    const std::string_view part = rest.substr(0, end);
    rest.remove_prefix(std::min(end + 1, rest.size()));
    const std::string_view problem = problemOf(part);
    if (problem.empty()) continue;
    std::string sentence = "'" + std::string(path) + "' cannot be written: '" + std::string(part);
    return sentence.append("' ").append(problem).append(". Choose another name.");
  }
  return std::nullopt;
}

bool isAbsoluteOnWindows(std::string_view path) {
  if (startsWithDrive(path)) return path.size() > 2 && isSeparator(path[2]);
  return path.size() > 2 && isSeparator(path[0]) && isSeparator(path[1]) && !isSeparator(path[2]);
}

}  // namespace veldra::host
