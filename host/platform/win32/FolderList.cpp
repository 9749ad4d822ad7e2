#include "host/platform/FolderList.h"

#include <windows.h>

#include "host/platform/SystemError.h"
#include "host/platform/win32/OpenFile.h"
#include "host/platform/win32/WideText.h"

namespace veldra::host {
namespace {

FolderEntry::Kind kindOf(DWORD attributes) {
  if ((attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0) return FolderEntry::Kind::Link;
  if ((attributes & FILE_ATTRIBUTE_DIRECTORY) != 0) return FolderEntry::Kind::Folder;
  if ((attributes & FILE_ATTRIBUTE_DEVICE) != 0) return FolderEntry::Kind::Other;
  return FolderEntry::Kind::File;
}

}  // namespace

std::vector<FolderEntry> listFolder(const std::string& path, std::string& error) {
  std::vector<FolderEntry> entries;
  WIN32_FIND_DATAW found{};
  const HANDLE search = FindFirstFileExW(nativePath(path + "\\*").c_str(), FindExInfoBasic, &found,
                                         FindExSearchNameMatch, nullptr, FIND_FIRST_EX_LARGE_FETCH);
  if (search == INVALID_HANDLE_VALUE) {
    error = systemErrorText(lastError());
    return entries;
  }
  do {
    std::string name = fromWide(found.cFileName);
    if (name != "." && name != "..")
      entries.push_back({std::move(name), kindOf(found.dwFileAttributes)});
  } while (FindNextFileW(search, &found));
  const int end = lastError();
  if (end != ERROR_NO_MORE_FILES) error = systemErrorText(end);
  FindClose(search);
  return entries;
}

}  // namespace veldra::host
