#include "host/platform/FolderList.h"

#include <windows.h>

#include "host/platform/SystemError.h"

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
  WIN32_FIND_DATAA found{};
  const HANDLE search = FindFirstFileA((path + "\\*").c_str(), &found);
  if (search == INVALID_HANDLE_VALUE) {
    error = systemErrorText(static_cast<int>(GetLastError()));
    return entries;
  }
  do {
    const std::string name = found.cFileName;
    if (name != "." && name != "..") entries.push_back({name, kindOf(found.dwFileAttributes)});
  } while (FindNextFileA(search, &found));
  const DWORD end = GetLastError();
  if (end != ERROR_NO_MORE_FILES) error = systemErrorText(static_cast<int>(end));
  FindClose(search);
  return entries;
}

}  // namespace veldra::host
