#include "host/platform/FolderList.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>
#include <cstring>

#include "host/platform/SystemError.h"

namespace veldra::host {
namespace {

FolderEntry::Kind kindOfMode(mode_t mode) {
  if (S_ISREG(mode)) return FolderEntry::Kind::File;
  if (S_ISDIR(mode)) return FolderEntry::Kind::Folder;
  return S_ISLNK(mode) ? FolderEntry::Kind::Link : FolderEntry::Kind::Other;
}

FolderEntry::Kind kindOf(DIR* folder, const dirent& entry) {
  switch (entry.d_type) {
    case DT_REG:
      return FolderEntry::Kind::File;
    case DT_DIR:
      return FolderEntry::Kind::Folder;
    case DT_LNK:
      return FolderEntry::Kind::Link;
    case DT_UNKNOWN:
      break;
    default:
      return FolderEntry::Kind::Other;
  }
  // Some file systems do not tell the kind in the listing.
  struct stat facts {};
  const bool known = ::fstatat(::dirfd(folder), entry.d_name, &facts, AT_SYMLINK_NOFOLLOW) == 0;
  return known ? kindOfMode(facts.st_mode) : FolderEntry::Kind::Other;
}

bool isDots(const char* name) {
  return !std::strcmp(name, ".") || !std::strcmp(name, "..");
}

}  // namespace

std::vector<FolderEntry> listFolder(const std::string& path, std::string& error) {
  std::vector<FolderEntry> entries;
  DIR* folder = ::opendir(path.c_str());
  if (!folder) {
    error = systemErrorText(errno);
    return entries;
  }
  for (errno = 0; const dirent* entry = ::readdir(folder); errno = 0) {
    if (!isDots(entry->d_name)) entries.push_back({entry->d_name, kindOf(folder, *entry)});
  }
  if (errno != 0) error = systemErrorText(errno);
  ::closedir(folder);
  return entries;
}

}  // namespace veldra::host
