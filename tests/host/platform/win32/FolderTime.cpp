#include "tests/host/platform/FolderTime.h"

#include <gtest/gtest.h>

#include <cstdint>

#include "host/platform/win32/SystemHandle.h"
#include "host/platform/win32/WideText.h"

namespace veldra::host {

void setFolderAge(const std::string& folder, int days) {
  constexpr std::uint64_t TicksPerDay = 864'000'000'000;
  FILETIME now{};
  GetSystemTimeAsFileTime(&now);
  const std::uint64_t ticks = ((std::uint64_t{now.dwHighDateTime} << 32U) | now.dwLowDateTime) -
                              TicksPerDay * static_cast<std::uint64_t>(days);
  const FILETIME then{static_cast<DWORD>(ticks), static_cast<DWORD>(ticks >> 32U)};
  const SystemHandle opened(CreateFileW(nativePath(folder).c_str(), FILE_WRITE_ATTRIBUTES,
                                        FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING,
                                        FILE_FLAG_BACKUP_SEMANTICS, nullptr));
  ASSERT_TRUE(opened && SetFileTime(opened.get(), nullptr, nullptr, &then)) << folder;
}

}  // namespace veldra::host
