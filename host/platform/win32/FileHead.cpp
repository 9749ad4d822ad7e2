#include "host/platform/FileHead.h"

#include <algorithm>

#include "host/platform/SystemError.h"
#include "host/platform/win32/OpenFile.h"
#include "host/platform/win32/WideText.h"

namespace veldra::host {
namespace {

FileHead::State stateOfError(int number) {
  switch (number) {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
    case ERROR_INVALID_NAME:
    case ERROR_BAD_NETPATH:
    case ERROR_BAD_NET_NAME:
      return FileHead::State::Missing;
    case ERROR_ACCESS_DENIED:
    case ERROR_SHARING_VIOLATION:
      return FileHead::State::NotPermitted;
    default:
      return FileHead::State::Unreadable;
  }
}

void fail(FileFacts& head, int number) {
  head.state = stateOfError(number);
  head.error = systemErrorText(number);
}

std::uint64_t joined(DWORD high, DWORD low) {
  return (std::uint64_t{high} << 32U) | low;
}

/// The system counts tenths of microseconds since 1601.
std::int64_t nanosecondsSince1970(const LARGE_INTEGER& time) {
  constexpr std::int64_t TicksBefore1970 = 116'444'736'000'000'000;
  return time.QuadPart == 0 ? 0 : (time.QuadPart - TicksBefore1970) * 100;
}

bool takeFacts(FileFacts& head, HANDLE file) {
  BY_HANDLE_FILE_INFORMATION facts{};
  FILE_BASIC_INFO times{};
  if (GetFileType(file) != FILE_TYPE_DISK) {
    head.state = FileHead::State::NotAFile;
    return true;
  }
  if (!GetFileInformationByHandle(file, &facts)) return false;
  if (!GetFileInformationByHandleEx(file, FileBasicInfo, &times, sizeof times)) return false;
  head.ownerMayWrite = (facts.dwFileAttributes & FILE_ATTRIBUTE_READONLY) == 0;
  head.size = joined(facts.nFileSizeHigh, facts.nFileSizeLow);
  head.identity = {facts.dwVolumeSerialNumber, joined(facts.nFileIndexHigh, facts.nFileIndexLow)};
  head.changed = nanosecondsSince1970(times.ChangeTime);
  head.written = nanosecondsSince1970(times.LastWriteTime);
  const bool isFolder = (facts.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
  head.state = isFolder ? FileHead::State::NotAFile : FileHead::State::Readable;
  return true;
}

void readOpenFile(FileHead& head, HANDLE file, std::span<char> buffer) {
  if (!takeFacts(head, file)) return fail(head, lastError());
  if (head.state != FileHead::State::Readable) return;
  DWORD got = 0;
  const auto wanted = static_cast<DWORD>(std::min<std::uint64_t>(head.size, buffer.size()));
  if (!ReadFile(file, buffer.data(), wanted, &got, nullptr)) return fail(head, lastError());
  head.bytes = std::string_view(buffer.data(), got);
}

/// Without any right to the content, so that nobody's opening for himself alone is in the way.
SystemHandle openForFacts(const std::string& path) {
  return SystemHandle(CreateFileW(nativePath(path).c_str(), FILE_READ_ATTRIBUTES,
                                  FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                  OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr));
}

}  // namespace

FileFacts readFileFacts(const std::string& path) {
  FileFacts result;
  const SystemHandle file = openForFacts(path);
  if (!file || !takeFacts(result, file.get())) fail(result, lastError());
  return result;
}

FileHead readFileHead(const std::string& path, std::span<char> buffer) {
  FileHead head;
  const SystemHandle file = openForReading(path);
  if (!file) {
    const int reason = lastError();
    // A file that may not be read still has a mode and an identity.
    if (const SystemHandle closed = openForFacts(path)) takeFacts(head, closed.get());
    fail(head, reason);
    return head;
  }
  readOpenFile(head, file.get(), buffer);
  return head;
}

}  // namespace veldra::host
