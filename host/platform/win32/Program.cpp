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
