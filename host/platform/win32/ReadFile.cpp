#include <algorithm>
#include <new>

#include "host/platform/AtomicFile.h"
#include "host/platform/ReadToEnd.h"
#include "host/platform/SystemError.h"
#include "host/platform/win32/OpenFile.h"

namespace veldra::host {

namespace {

using Contents = Result<std::string>;

Contents unreadable(const std::string& path, int error) {
  const std::string name = "'" + path + "' ";
  switch (error) {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
      return Contents::failure(name + "does not exist.");
    case ERROR_ACCESS_DENIED:
      return Contents::failure(name + "cannot be read: there is no permission to read it.");
    case ERROR_SHARING_VIOLATION:
      return Contents::failure(name + "cannot be read: another program keeps it to itself.");
    default:
      return Contents::failure(name + "cannot be read: " + systemErrorText(error) + ".");
  }
}

ReadStep readOnce(HANDLE file, std::span<char> room) {
  constexpr std::size_t MostAtOnce = std::size_t{1} << 30;
  DWORD count = 0;
  const auto size = static_cast<DWORD>(std::min(room.size(), MostAtOnce));
  if (!ReadFile(file, room.data(), size, &count, nullptr)) return {0, lastError()};
  return {count, 0};
}

}  // namespace

Result<std::string> readFile(const std::string& path, std::size_t limit) {
  const SystemHandle file = openForReading(path);
  if (!file) return unreadable(path, lastError());
  if (GetFileType(file.get()) != FILE_TYPE_DISK)
    return Contents::failure("'" + path + "' is not a regular file.");
  FILE_STANDARD_INFO facts{};
  if (!GetFileInformationByHandleEx(file.get(), FileStandardInfo, &facts, sizeof facts))
    return unreadable(path, lastError());
  if (facts.Directory) return Contents::failure("'" + path + "' is a directory, not a file.");
  try {
    return readToEnd(
        path, static_cast<std::size_t>(facts.EndOfFile.QuadPart), limit,
        [&](std::span<char> room) { return readOnce(file.get(), room); }, unreadable);
  } catch (const std::bad_alloc&) {
    return unreadable(path, ERROR_NOT_ENOUGH_MEMORY);
  }
}

}  // namespace veldra::host
