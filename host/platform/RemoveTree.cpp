#include "host/platform/RemoveTree.h"

#include <vector>

namespace veldra::host {

namespace fs = std::filesystem;

namespace {

std::vector<fs::path> entriesOf(const fs::path& folder) {
  std::vector<fs::path> entries;
  std::error_code failed;
  for (fs::directory_iterator at(folder, failed), end; !failed && at != end; at.increment(failed)) {
    entries.push_back(at->path());
  }
  return entries;
}

bool removeWithContent(const fs::path& path) {
  std::error_code failed;
  if (fs::symlink_status(path, failed).type() == fs::file_type::directory) {
    for (const fs::path& entry : entriesOf(path)) removeWithContent(entry);
  }
  return removeEntry(path, failed);
}

}  // namespace

bool removeEntry(const fs::path& path, std::error_code& failed) {
  const bool isRemoved = fs::remove(path, failed);
  if (!failed) return isRemoved;
  // Windows removes no file that is read-only.
  std::error_code ignored;
  fs::permissions(path, fs::perms::owner_write, fs::perm_options::add | fs::perm_options::nofollow,
                  ignored);
  return fs::remove(path, failed);
}

bool removeTree(const fs::path& path) noexcept {
  try {
    return removeWithContent(path);
  } catch (...) {
    return false;
  }
}

}  // namespace veldra::host
