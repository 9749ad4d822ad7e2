// Starting a program that lives on by itself.

#include <windows.h>

#include <optional>
#include <string>
#include <vector>

#include "host/platform/CommandLine.h"
#include "host/platform/Processes.h"
#include "host/platform/ProgramSearch.h"
#include "host/platform/win32/ChildCommandLine.h"
#include "host/platform/win32/WideText.h"

namespace veldra::host {

bool Processes::startDetached(const std::string& command) {
  const Result<std::vector<std::string>> arguments = splitCommandLine(command);
  if (!arguments || arguments->empty()) return false;
  const Result<std::string> program = findProgram(arguments->front());
  if (!program) return false;
  std::optional<std::wstring> line = childCommandLine(*arguments);  // The call writes into it.
  if (!line) return false;
  STARTUPINFOW startup{};
  startup.cb = sizeof(startup);
  startup.dwFlags = STARTF_USESHOWWINDOW | STARTF_USESTDHANDLES;
  startup.wShowWindow = SW_SHOWNORMAL;
  startup.hStdInput = GetStdHandle(STD_INPUT_HANDLE);
  startup.hStdOutput = GetStdHandle(STD_OUTPUT_HANDLE);
  startup.hStdError = GetStdHandle(STD_ERROR_HANDLE);
  PROCESS_INFORMATION process{};
  if (!CreateProcessW(nativePath(*program).c_str(), line->data(), nullptr, nullptr, TRUE, 0,
                      nullptr, L".", &startup, &process)) {
    return false;
  }
  CloseHandle(process.hThread);
  CloseHandle(process.hProcess);
  return true;
}

}  // namespace veldra::host
