#include "host/platform/Program.h"

#include <io.h>
#include <stdlib.h>
#include <windows.h>

namespace veldra::host {

bool isTerminal(StandardStream stream) {
  return _isatty(static_cast<int>(stream)) != 0;
}

void setVariable(const char* name, const char* value) {
  _putenv_s(name, value);
}

std::string locateProgram(const std::string& name) {
  char path[MAX_PATH] = {};
  const DWORD length = SearchPathA(nullptr, name.c_str(), ".exe", MAX_PATH, path, nullptr);
  return length > 0 && length < MAX_PATH ? std::string(path, length) : std::string();
}

std::string programFolder() {
  char path[MAX_PATH] = {};
  const DWORD length = GetModuleFileNameA(nullptr, path, MAX_PATH);
  const std::string name(path, length < MAX_PATH ? length : 0);
  return name.substr(0, name.find_last_of('\\') == std::string::npos ? 0 : name.find_last_of('\\'));
}

void addOwnFolderToPath() {
  const std::string folder = programFolder();
  const char* const path = getenv("PATH");
  if (folder.empty()) return;
  setVariable("PATH", path == nullptr ? folder.c_str() : (path + (";" + folder)).c_str());
}

bool canWriteInto(const std::string& folder) {
  return _access(folder.c_str(), 2) == 0;
}

bool belongsToUser(const std::string& path) {
  // The folder for temporary files lies in the user's own profile.
  return canWriteInto(path);
}

long processNumber() {
  return static_cast<long>(GetCurrentProcessId());
}

bool isProcessAlive(long number) {
  const HANDLE process =
      OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, static_cast<DWORD>(number));
  if (process == nullptr) return GetLastError() != ERROR_INVALID_PARAMETER;
  DWORD code = 0;
  const bool isRunning = GetExitCodeProcess(process, &code) == 0 || code == STILL_ACTIVE;
  CloseHandle(process);
  return isRunning;
}

}  // namespace veldra::host
