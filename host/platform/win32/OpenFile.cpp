#include "host/platform/win32/OpenFile.h"

#include <algorithm>

#include "host/platform/win32/WideText.h"

namespace veldra::host {

SystemHandle openForReading(const std::string& path) {
  return SystemHandle(CreateFileW(nativePath(path).c_str(), GENERIC_READ,
                                  FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                  OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr));
}

std::wstring finalName(const std::wstring& name) {
  const SystemHandle file(CreateFileW(name.c_str(), FILE_READ_ATTRIBUTES,
                                      FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                      nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr));
  if (!file) return {};
  std::wstring final(32768, L'\0');
  const DWORD length = GetFinalPathNameByHandleW(
      file.get(), final.data(), static_cast<DWORD>(final.size()), FILE_NAME_NORMALIZED);
  final.resize(length < final.size() ? length : 0);
  return final;
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
