#include "host/model/KeptFiles.h"

#include <filesystem>
#include <random>
#include <system_error>
#include <utility>
#include <vector>

#include "host/model/FolderScan.h"
#include "host/model/PathNames.h"
#include "host/platform/AtomicFile.h"
#include "host/platform/RemoveTree.h"

namespace veldra::host {
namespace fs = std::filesystem;

namespace {

/// A fresh private folder outside of the project, where no CM tool sees it.
fs::path makeFolder() {
  std::random_device random;
  const fs::path folder = fs::temp_directory_path() /
                          ("veldra-kept-" + std::to_string(random()) + std::to_string(random()));
  if (!fs::create_directory(folder)) throw fs::filesystem_error("in use", folder, {});
  fs::permissions(folder, fs::perms::owner_all);
  return folder;
}

bool isSame(const std::string& a, const std::string& b) {
  std::error_code failed;
  if (fs::status(a, failed).permissions() != fs::status(b, failed).permissions()) return false;
  if (fs::file_size(a, failed) != fs::file_size(b, failed) || failed) return false;
  const Result<std::string> left = readFile(a, std::string::npos);
  const Result<std::string> right = readFile(b, std::string::npos);
  return left && right && *left == *right;
}

void remove(const std::string& file) {
  std::error_code failed;
  removeEntry(file, failed);
  if (failed) throw fs::filesystem_error("cannot be removed", file, failed);
}

void copyOver(const std::string& from, const std::string& to) {
  fs::create_directories(fs::path(to).parent_path());
  remove(to);
  fs::copy_file(from, to);
  fs::permissions(to, fs::status(from).permissions());
}

/// Removes folders that are empty, the deepest first.
void removeEmptyFolders(const std::string& top) {
  std::error_code failed;
  std::vector<fs::path> folders;
  for (fs::recursive_directory_iterator at(top, failed), end; !failed && at != end;
       at.increment(failed)) {
    if (at->is_directory(failed) && !at->is_symlink(failed)) folders.push_back(at->path());
  }
  for (auto at = folders.rbegin(); at != folders.rend(); ++at) fs::remove(*at, failed);
  if (fs::is_directory(top, failed)) fs::remove(top, failed);
}

}  // namespace

KeptFiles::KeptFiles(std::string path, std::string& error) : m_path(std::move(path)) {
  try {
    m_folder = makeFolder().string();
    if (!fs::is_directory(m_path)) {
      if (fs::exists(m_path)) keep({});
      return;
    }
    for (fs::recursive_directory_iterator at(m_path), end; at != end; ++at) {
      if (at->is_directory() && isRecordFolder(at->path().filename().string())) {
        at.disable_recursion_pending();
      } else if (at->is_regular_file() && !at->is_symlink()) {
        keep(at->path().string().substr(m_path.size() + 1));
      }
    }
  } catch (const fs::filesystem_error& failure) {
    error = "No copy of " + m_path + " can be made: " + failure.code().message() + ".";
  }
}

KeptFiles::~KeptFiles() {
  if (!m_stays && !m_folder.empty()) removeTree(m_folder);
}

void KeptFiles::keep(const std::string& file) {
  const std::string copy = joinPath(m_folder, std::to_string(m_copies.size()));
  const std::string original = file.empty() ? m_path : joinPath(m_path, file);
  fs::copy_file(original, copy);
  fs::permissions(copy, fs::status(original).permissions());
  m_copies[file] = copy;
}

std::optional<std::string> KeptFiles::restore(const std::string& other) {
  std::string file;
  std::string copy;
  try {
    for (const auto& [name, kept] : m_copies) {
      file = name.empty() ? m_path : joinPath(m_path, name);
      copy = kept;
      if (!isSame(file, kept)) copyOver(kept, file);
      if (!other.empty()) remove(name.empty() ? other : joinPath(other, name));
    }
    if (!other.empty()) removeEmptyFolders(other);
  } catch (const fs::filesystem_error& failure) {
    m_stays = true;
    return file + " cannot be put back: " + failure.code().message() + ". Its copy is " + copy +
           ".";
  }
  return std::nullopt;
}

void KeptFiles::moveOriginals(const std::string& path) const {
  std::error_code failed;
  for (const auto& [name, kept] : m_copies) {
    const std::string from = name.empty() ? m_path : joinPath(m_path, name);
    const std::string to = name.empty() ? path : joinPath(path, name);
    if (!fs::exists(from, failed) || fs::exists(to, failed)) continue;
    fs::create_directories(fs::path(to).parent_path(), failed);
    fs::rename(from, to, failed);
  }
  removeEmptyFolders(m_path);
}

void KeptFiles::removeOriginals(const std::function<bool(const std::string&)>& mayGo) const {
  std::error_code failed;
  for (const auto& [name, kept] : m_copies) {
    const std::string file = name.empty() ? m_path : joinPath(m_path, name);
    if (fs::exists(file, failed) && mayGo(file)) removeEntry(file, failed);
  }
  removeEmptyFolders(m_path);
}

}  // namespace veldra::host
