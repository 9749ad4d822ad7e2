// Starting a program that lives on by itself.

#include <windows.h>

#include <optional>
#include <string>

#include "host/platform/Processes.h"
#include "host/platform/win32/WideText.h"

namespace veldra::host {

bool Processes::startDetached(const std::string& command) {
  STARTUPINFOW startup{};
  startup.cb = sizeof(startup);
  startup.dwFlags = STARTF_USESHOWWINDOW | STARTF_USESTDHANDLES;
  startup.wShowWindow = SW_SHOWNORMAL;
  startup.hStdInput = GetStdHandle(STD_INPUT_HANDLE);
  startup.hStdOutput = GetStdHandle(STD_OUTPUT_HANDLE);
  startup.hStdError = GetStdHandle(STD_ERROR_HANDLE);
  PROCESS_INFORMATION process{};
  std::optional<std::wstring> line = toWide(command);  // The call writes into it.
  if (!line || CreateProcessW(nullptr, line->data(), nullptr, nullptr, TRUE, 0, nullptr, L".",
                              &startup, &process) == 0) {
    return false;
  }
  CloseHandle(process.hThread);
  CloseHandle(process.hProcess);
  return true;
}

}  // namespace veldra::host
