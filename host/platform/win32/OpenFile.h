#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "host/platform/win32/SystemHandle.h"

namespace veldra::host {

/// Opens a file for reading, whoever else has it open; a directory too.
[[nodiscard]] SystemHandle openForReading(const std::string& path);

/// The system's own name for a file or directory, behind all links and spelled as the disk has it.
/// Empty when it cannot be had.
[[nodiscard]] std::wstring finalName(const std::wstring& name);

/// Writes all bytes, however many calls that takes. 0, or the system's error number.
[[nodiscard]] DWORD writeFully(HANDLE file, std::string_view bytes);

/// The last error as the rest of the program takes it.
[[nodiscard]] inline int lastError() {
  return static_cast<int>(GetLastError());
}

}  // namespace veldra::host
