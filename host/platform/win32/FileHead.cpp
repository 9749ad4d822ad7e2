#include "host/platform/FileHead.h"

#include <windows.h>

#include <algorithm>

#include "host/platform/SystemError.h"

namespace veldra::host {
namespace {

void fail(FileFacts& head, DWORD number) {
  if (number == ERROR_FILE_NOT_FOUND || number == ERROR_PATH_NOT_FOUND) {
    head.state = FileHead::State::Missing;
  } else if (number == ERROR_ACCESS_DENIED) {
    head.state = FileHead::State::NotPermitted;
  } else {
    head.state = FileHead::State::Unreadable;
  }
  head.error = systemErrorText(static_cast<int>(number));
}

/// The system counts in steps of 100 nanoseconds from 1601 on.
std::int64_t nanoseconds(const FILETIME& time) {
  constexpr std::int64_t From1601To1970 = 116'444'736'000'000'000;
  const auto steps = (std::uint64_t{time.dwHighDateTime} << 32U) | time.dwLowDateTime;
  return (static_cast<std::int64_t>(steps) - From1601To1970) * 100;
}

void readOpenFile(FileHead& head, HANDLE file, std::span<char> buffer) {
  BY_HANDLE_FILE_INFORMATION facts{};
  if (!GetFileInformationByHandle(file, &facts)) return fail(head, GetLastError());
  head.ownerMayWrite = (facts.dwFileAttributes & FILE_ATTRIBUTE_READONLY) == 0;
  head.size = (std::uint64_t{facts.nFileSizeHigh} << 32U) | facts.nFileSizeLow;
  head.identity = {facts.dwVolumeSerialNumber,
                   (std::uint64_t{facts.nFileIndexHigh} << 32U) | facts.nFileIndexLow};
  head.written = nanoseconds(facts.ftLastWriteTime);
  DWORD got = 0;
  const auto wanted = static_cast<DWORD>(std::min<std::uint64_t>(head.size, buffer.size()));
  if (!ReadFile(file, buffer.data(), wanted, &got, nullptr)) return fail(head, GetLastError());
  head.state = FileHead::State::Readable;
  head.bytes = std::string_view(buffer.data(), got);
}

}  // namespace

FileFacts readFileFacts(const std::string& path) {
  return readFileHead(path, {});
}

FileHead readFileHead(const std::string& path, std::span<char> buffer) {
  FileHead head;
  const DWORD attributes = GetFileAttributesA(path.c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES) {
    fail(head, GetLastError());
    return head;
  }
  head.ownerMayWrite = (attributes & FILE_ATTRIBUTE_READONLY) == 0;
  if ((attributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
    head.state = FileHead::State::NotAFile;
    return head;
  }
  const HANDLE file = CreateFileA(path.c_str(), GENERIC_READ,
                                  FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                  OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) {
    fail(head, GetLastError());
    return head;
  }
  readOpenFile(head, file, buffer);
  CloseHandle(file);
  return head;
}

}  // namespace veldra::host
