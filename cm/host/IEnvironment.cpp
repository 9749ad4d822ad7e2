#include "cm/host/IEnvironment.h"

#include <algorithm>

#include "cm/host/Host.h"

namespace veldra {

namespace {
IEnvironment* environment() {
  Host* host = installedHost();
  return host != nullptr ? &host->environment() : nullptr;
}

/// One call on the environment, or what a thing that does not exist answers.
template <class Result, class Call>
Result ask(Result without, Call call) {
  IEnvironment* const there = environment();
  return there != nullptr ? call(*there) : without;
}
}  // namespace

int omGetRoot(std::string& root) {
  return ask(0, [&](IEnvironment& e) { return e.omGetRoot(root); });
}

int omGetEnvVar(const std::string& section, const std::string& name, std::string& value,
                const std::string& defaultValue) {
  return ask(0, [&](IEnvironment& e) { return e.omGetEnvVar(section, name, value, defaultValue); });
}

char omPathSeparator() {
  return ask('/', [](IEnvironment& e) { return e.omPathSeparator(); });
}

bool omIsAbsolutePath(const std::string& path) {
  return ask(false, [&](IEnvironment& e) { return e.omIsAbsolutePath(path); });
}

std::string omGetTempDir() {
  return ask(std::string(), [](IEnvironment& e) { return e.omGetTempDir(); });
}

std::string omGetCurrentTime() {
  return ask(std::string(), [](IEnvironment& e) { return e.omGetCurrentTime(); });
}

std::string omGetCurrentDate() {
  return ask(std::string(), [](IEnvironment& e) { return e.omGetCurrentDate(); });
}

std::string omGetCurrentUser() {
  return ask(std::string(), [](IEnvironment& e) { return e.omGetCurrentUser(); });
}

bool omFileExist(const std::string& path) {
  return ask(false, [&](IEnvironment& e) { return e.omFileExist(path); });
}

bool omFileExistsAndNonEmpty(const std::string& path) {
  return ask(false, [&](IEnvironment& e) { return e.omFileExistsAndNonEmpty(path); });
}

bool omFileHasWritePermission(const std::string& path) {
  return ask(false, [&](IEnvironment& e) { return e.omFileHasWritePermission(path); });
}

std::optional<std::int64_t> omGetFileTime(const std::string& path) {
  return ask(std::optional<std::int64_t>(), [&](IEnvironment& e) { return e.omGetFileTime(path); });
}

std::string omGetFullPathOfDirectory(const std::string& path, std::string& errorText) {
  return ask(std::string(),
             [&](IEnvironment& e) { return e.omGetFullPathOfDirectory(path, errorText); });
}

std::string omGetErrorCodeString() {
  return ask(std::string(), [](IEnvironment& e) { return e.omGetErrorCodeString(); });
}

void ParseToDirFileNameAndExtension(const std::string& path, std::string& directory,
                                    std::string& fileName, std::string& extension) {
  const std::size_t nameStart = path.find_last_of("/\\") + 1;  // The number after npos is 0.
  const std::string name = path.substr(nameStart);
  const std::size_t dot = std::min(name.rfind('.'), name.size());
  directory = path.substr(0, nameStart);
  fileName = name.substr(0, dot);
  extension = name.substr(dot);
}

}  // namespace veldra
