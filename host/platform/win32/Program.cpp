#include "host/platform/Program.h"

#include <io.h>
#include <stdlib.h>
#include <windows.h>

#include <filesystem>

#include "host/platform/win32/SystemHandle.h"
#include "host/platform/win32/WideText.h"

namespace veldra::host {

bool isTerminal(StandardStream stream) {
  // Every device that has characters counts there, the empty one included.
  DWORD mode = 0;
  const auto file = reinterpret_cast<HANDLE>(_get_osfhandle(static_cast<int>(stream)));
  return GetConsoleMode(file, &mode) != 0;
}

void prepareTerminal() {
  SetConsoleOutputCP(CP_UTF8);
  SetConsoleCP(CP_UTF8);
  for (const DWORD stream : {STD_OUTPUT_HANDLE, STD_ERROR_HANDLE}) {
    DWORD mode = 0;
    const HANDLE terminal = GetStdHandle(stream);
    if (GetConsoleMode(terminal, &mode))
      SetConsoleMode(terminal, mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING);
  }
}

void setVariable(const char* name, const char* value) {
  _putenv_s(name, value ? value : "");
}

std::string programFolder() {
  // No path is longer, and one that is cut would name another folder.
  std::wstring program(32768, L'\0');
  program.resize(GetModuleFileNameW(nullptr, program.data(), static_cast<DWORD>(program.size())));
  return fromWide(std::filesystem::path(program).parent_path().native());
}

void addOwnFolderToPath() {
  const std::string folder = programFolder();
  const char* const path = getenv("PATH");
  if (folder.empty()) return;
  setVariable("PATH", path == nullptr ? folder.c_str() : (path + (";" + folder)).c_str());
}

bool canWriteInto(const std::string& folder) {
  // What the attributes say of a folder is no permission; to ask for one tells.
  return static_cast<bool>(
      SystemHandle(CreateFileW(nativePath(folder).c_str(), FILE_ADD_FILE,
                               FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                               OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr)));
}

long processNumber() {
  return static_cast<long>(GetCurrentProcessId());
}

bool isProcessAlive(long number) {
  const SystemHandle process(OpenProcess(SYNCHRONIZE, FALSE, static_cast<DWORD>(number)));
  if (!process) return GetLastError() != ERROR_INVALID_PARAMETER;
  return WaitForSingleObject(process.get(), 0) == WAIT_TIMEOUT;
}

}  // namespace veldra::host
