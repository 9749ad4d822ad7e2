#include <fcntl.h>
#include <io.h>
#include <stdio.h>
#include <windows.h>

#include <cstdint>

#include "host/platform/CommandLine.h"
#include "tests/support/child/System.h"

namespace veldra::test {

void useBinaryStreams() {
  for (std::FILE* const stream : {stdin, stdout, stderr}) _setmode(_fileno(stream), _O_BINARY);
}

long ownNumber() {
  return static_cast<long>(GetCurrentProcessId());
}

int openFiles() {
  // Handles are not numbered one after the other; those that a parent could have leaked are small.
  int count = 0;
  for (std::uintptr_t number = 4; number < 4096; number += 4) {
    const DWORD kind = GetFileType(reinterpret_cast<HANDLE>(number));
    if (kind == FILE_TYPE_DISK || kind == FILE_TYPE_PIPE || kind == FILE_TYPE_CHAR) ++count;
  }
  return count;
}

void crash() {
  volatile std::uintptr_t nowhere = 64;
  *reinterpret_cast<volatile int*>(nowhere) = 1;
}

int spawn(const std::string& program, const std::vector<std::string>& arguments) {
  std::vector<std::string> all{program};
  all.insert(all.end(), arguments.begin(), arguments.end());
  std::string line = host::joinCommandLine(all);
  STARTUPINFOA startup{};
  startup.cb = sizeof startup;
  PROCESS_INFORMATION started{};
  return CreateProcessA(nullptr, line.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &startup,
                        &started)
             ? 0
             : 98;
}

}  // namespace veldra::test
