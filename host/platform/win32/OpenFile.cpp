#include "host/platform/win32/OpenFile.h"

#include <algorithm>

#include "host/platform/win32/WideText.h"

namespace veldra::host {

SystemHandle openForReading(const std::string& path) {
  return SystemHandle(CreateFileW(nativePath(path).c_str(), GENERIC_READ,
                                  FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                  OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr));
}

DWORD writeFully(HANDLE file, std::string_view bytes) {
  constexpr std::size_t MostAtOnce = std::size_t{1} << 30;
  while (!bytes.empty()) {
    DWORD written = 0;
    const auto size = static_cast<DWORD>(std::min(bytes.size(), MostAtOnce));
    if (!WriteFile(file, bytes.data(), size, &written, nullptr)) return GetLastError();
    bytes.remove_prefix(written);
  }
  return 0;
}

}  // namespace veldra::host
