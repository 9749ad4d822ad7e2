#include "host/kept/KeptCopies.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <system_error>
#include <utility>

#include "host/kept/ProjectRecords.h"
#include "host/model/PathNames.h"
#include "host/platform/AtomicFile.h"
#include "host/platform/Clock.h"
#include "host/platform/FileReplacement.h"
#include "host/platform/Program.h"
#include "host/platform/RemoveTree.h"

namespace veldra::host {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t RestoreLimit = std::size_t{1} << 30;
// A copy that is still being made.
constexpr std::string_view PartPrefix = ".part-";
// Stands for the root of the file system; no file of a project has such a name.
constexpr std::string_view OutsideFolder = "=outside=";
constexpr std::size_t StampLength = sizeof("20260131-093000") - 1;

std::string withBlanks(std::string_view text, char other) {
  std::string out(text);
  std::ranges::replace(out, other, ' ');
  return out;
}

/// "20260131-093000-PROCESS-0001.undo_check_out".
std::string newId(const std::string& operation) {
  static unsigned counter = 0;
  const std::tm now = localTimeNow();
  std::string stamp = dateText(now) + '-' + timeText(now);
  std::erase_if(stamp, [at = 0](char c) mutable {
    // The dashes of the date go, the one before the time stays.
    return c == ':' || (c == '-' && at++ < 2);
  });
  std::array<char, 16> number{};
  std::snprintf(number.data(), number.size(), "%06u", ++counter);
  std::string word = lowerCase(operation);
  std::ranges::replace_if(
      word, [](char c) { return c < 'a' || c > 'z'; }, '_');
  return stamp + '-' + std::to_string(processNumber()) + '-' + number.data() + '.' + word;
}

std::string timeOf(std::string_view id) {
  if (id.size() < StampLength) return {};
  const auto part = [&id](std::size_t from, std::size_t size) {
    return std::string(id.substr(from, size));
  };
  return part(0, 4) + '-' + part(4, 2) + '-' + part(6, 2) + ' ' + part(9, 2) + ':' + part(11, 2) +
         ':' + part(13, 2);
}

/// The one file below a copy's folder, relative to it; empty for none.
std::string fileBelow(const std::string& folder) {
  std::error_code failed;
  for (fs::recursive_directory_iterator at(folder, failed), end; !failed && at != end;
       at.increment(failed)) {
    if (at->is_regular_file(failed)) return at->path().lexically_relative(folder).string();
  }
  return {};
}

bool sameContent(const std::string& one, const std::string& other) {
  std::error_code failed;
  if (fs::file_size(one, failed) != fs::file_size(other, failed) || failed) return false;
  std::ifstream a(one, std::ios::binary);
  std::ifstream b(other, std::ios::binary);
  std::array<char, std::size_t{1} << 16> left{};
  std::array<char, std::size_t{1} << 16> right{};
  while (a && b) {
    a.read(left.data(), left.size());
    b.read(right.data(), right.size());
    const auto count = a.gcount();
    if (count != b.gcount() || !std::equal(left.begin(), left.begin() + count, right.begin())) {
      return false;
    }
  }
  return a.eof() && b.eof();
}

}  // namespace

KeptCopies::KeptCopies(ProjectFolder projectFolder, KeptLimits limits)
    : m_projectFolder(std::move(projectFolder)), m_limits(limits) {}

std::string KeptCopies::store() const {
  const std::string project = m_projectFolder();
  return project.empty() ? project : joinPath(recordsFolder(project), "kept");
}

bool KeptCopies::keep(const std::string& fullFileName, const std::string& operation,
                      std::string& reason) {
  std::error_code unknown;
  if (store().empty() || !fs::is_regular_file(fullFileName, unknown)) return true;
  if (!m_isPruned) prune();
  std::string id;
  reason = copyFile(fullFileName, operation, id);
  if (!reason.empty()) return false;
  m_own.insert(id);
  m_open[fullFileName] = id;
  return true;
}

std::string KeptCopies::copyFile(const std::string& from, const std::string& operation,
                                 std::string& id) {
  const std::string project = m_projectFolder();
  if (const std::optional<std::string> failure = makeRecordsFolder(project)) return *failure;
  id = newId(operation);
  const std::string name =
      isInside(project, from) ? from.substr(project.size() + 1) : std::string(OutsideFolder) + from;
  const std::string part = joinPath(store(), std::string(PartPrefix) + id);
  const fs::path target = joinPath(part, name);
  std::error_code failed;
  fs::create_directories(target.parent_path(), failed);
  // It has to outlive this program and the tool, not the computer: no flush, which takes longer
  // than most tools do.
  if (!failed) fs::copy_file(from, target, failed);
  if (!failed) fs::rename(part, joinPath(store(), id), failed);
  if (!failed) return {};
  removeTree(part);
  return failed.message() + ". Make room in " + store() + ", or give yourself the right to write.";
}

void KeptCopies::settle(const std::string& fullFileName) {
  const auto open = m_open.find(fullFileName);
  if (open == m_open.end()) return;
  const std::string folder = joinPath(store(), open->second);
  if (sameContent(joinPath(folder, fileBelow(folder)), fullFileName)) removeTree(folder);
  m_open.erase(open);
}

std::vector<KeptCopy> KeptCopies::list() const {
  std::vector<KeptCopy> copies;
  const std::string folder = store();
  std::error_code failed;
  if (folder.empty()) return copies;
  for (fs::directory_iterator at(folder, failed), end; !failed && at != end; at.increment(failed)) {
    KeptCopy copy;
    copy.id = at->path().filename().string();
    const std::string file = fileBelow(at->path().string());
    if (copy.id.starts_with(PartPrefix) || file.empty()) continue;
    copy.path = file.starts_with(OutsideFolder) ? file.substr(OutsideFolder.size()) : file;
    copy.time = timeOf(copy.id);
    copy.operation =
        withBlanks(copy.id.substr(std::min(copy.id.find('.') + 1, copy.id.size())), '_');
    std::error_code unknown;
    copy.size = fs::file_size(at->path() / file, unknown);
    copies.push_back(std::move(copy));
  }
  std::ranges::sort(copies, std::ranges::greater(), &KeptCopy::id);
  return copies;
}

std::string KeptCopies::fileOf(const KeptCopy& copy) const {
  const std::string folder = joinPath(store(), copy.id);
  return joinPath(folder, fileBelow(folder));
}

std::string KeptCopies::originalOf(const KeptCopy& copy) const {
  const bool isComplete = std::filesystem::path(copy.path).is_absolute();
  return isComplete ? copy.path : joinPath(m_projectFolder(), copy.path);
}

std::optional<std::string> KeptCopies::objectionTo(const KeptCopy& copy, bool force) const {
  const std::string file = originalOf(copy);
  std::error_code unknown;
  const fs::file_status status = fs::status(file, unknown);
  if (!fs::exists(status)) return std::nullopt;
  return objection(
      file,
      {.isDirectory = fs::is_directory(status),
       .isRegular = fs::is_regular_file(status),
       .isReadOnly = (status.permissions() & fs::perms::owner_write) == fs::perms::none},
      force ? ReadOnlyFile::Replace : ReadOnlyFile::Refuse);
}

std::optional<std::string> KeptCopies::restore(const KeptCopy& copy, bool force) {
  const Result<std::string> bytes = readFile(fileOf(copy), RestoreLimit);
  if (!bytes) return bytes.error();
  const std::string file = originalOf(copy);
  std::string reason;
  if (!keep(file, "Restore", reason)) return reason;
  std::error_code failed;
  fs::create_directories(fs::path(file).parent_path(), failed);
  std::optional<std::string> failure =
      writeFileAtomically(file, *bytes, force ? ReadOnlyFile::Replace : ReadOnlyFile::Refuse);
  settle(file);
  return failure;
}

void KeptCopies::prune() {
  m_isPruned = true;
  std::error_code failed;
  for (fs::directory_iterator at(store(), failed), end; !failed && at != end;
       at.increment(failed)) {
    const std::string name = at->path().filename().string();
    const std::size_t process = PartPrefix.size() + StampLength + 1;
    if (!name.starts_with(PartPrefix) || name.size() <= process) continue;
    if (!isProcessAlive(std::atol(name.c_str() + process))) removeTree(at->path());
  }
  const auto oldest = fs::file_time_type::clock::now() - std::chrono::days(m_limits.days);
  std::uint64_t total = 0;
  for (const KeptCopy& copy : list()) {
    const std::string folder = joinPath(store(), copy.id);
    std::error_code unknown;
    total += copy.size;
    const bool isOver = total > m_limits.bytes || fs::last_write_time(folder, unknown) < oldest;
    if (!isOver || m_own.contains(copy.id)) continue;
    removeTree(folder);
  }
}

}  // namespace veldra::host
