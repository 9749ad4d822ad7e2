#include <errno.h>
#include <fcntl.h>
#include <stdio.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>

#include "host/platform/FileReplacement.h"
#include "host/platform/SystemError.h"
#include "host/platform/Temporaries.h"
#include "host/platform/posix/FileDescriptor.h"
#include "host/platform/posix/WriteFully.h"

namespace veldra::host {

namespace {

namespace fs = std::filesystem;

constexpr int MostLinks = 40;
constexpr mode_t PermissionBits = 07777;
constexpr mode_t NewFileMode = 0666;

/// The file behind a chain of links; it need not exist. Empty when the chain has no end.
fs::path targetOf(fs::path path) {
  std::error_code error;
  for (int i = 0; i < MostLinks; ++i) {
    const fs::path next = fs::read_symlink(path, error);
    if (error) return path;
    path = path.parent_path() / next;
  }
  return {};
}

/// A new file beside its target. It is removed again unless it has taken the target's name.
class TemporaryFile {
 public:
  TemporaryFile(const fs::path& directory, mode_t mode) {
    do {
      m_path = directory / nextTemporaryName();
      m_file.reset(::open(m_path.c_str(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, mode));
    } while (!m_file && errno == EEXIST);
    m_error = m_file ? 0 : errno;
  }
  ~TemporaryFile() {
    if (m_file) ::unlink(m_path.c_str());
  }
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;

  /// The error number of the first step that failed, or 0.
  int error() const { return m_error; }

  void takeOver(const struct stat& old) {
    // Only root may give a file away; another user's file then becomes the writer's.
    if (old.st_uid != geteuid() || old.st_gid != getegid()) {
      [[maybe_unused]] const int kept = ::fchown(m_file.get(), old.st_uid, old.st_gid);
    }
    note(::fchmod(m_file.get(), old.st_mode & PermissionBits));
  }

  void fill(std::string_view bytes) {
    if (m_error == 0) m_error = writeFully(m_file.get(), bytes);
    if (m_error == 0) note(::fsync(m_file.get()));
  }

  void rename(const fs::path& target) {
    if (m_error == 0) note(::rename(m_path.c_str(), target.c_str()));
    if (m_error == 0) m_file.reset();
  }

 private:
  void note(int result) {
    if (result != 0 && m_error == 0) m_error = errno;
  }

  fs::path m_path;
  FileDescriptor m_file;
  int m_error = 0;
};

/// Makes the new name itself survive a crash. Not every file system can, and nothing is lost then.
void syncDirectory(const fs::path& directory) {
  const FileDescriptor opened(::open(directory.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (opened) ::fsync(opened.get());
}

}  // namespace

std::optional<std::string> replaceFile(const std::string& path, std::string_view bytes,
                                       ReadOnlyFile readOnly) {
  const fs::path target = targetOf(path);
  if (target.empty()) return unwritten(path, "its links go round");
  struct stat old {};
  const bool exists = ::lstat(target.c_str(), &old) == 0;
  if (exists) {
    const PresentFile present = {.isDirectory = S_ISDIR(old.st_mode),
                                 .isRegular = S_ISREG(old.st_mode),
                                 .isReadOnly = (old.st_mode & S_IWUSR) == 0};
    if (auto reason = objection(path, present, readOnly)) return reason;
  }
  const fs::path directory = target.has_parent_path() ? target.parent_path() : fs::path(".");
  TemporaryFile file(directory, exists ? old.st_mode & 0777 : NewFileMode);
  if (exists && file.error() == 0) file.takeOver(old);
  file.fill(bytes);
  file.rename(target);
  if (file.error() != 0) return unwritten(path, systemErrorText(file.error()));
  syncDirectory(directory);
  return std::nullopt;
}

std::size_t restoreSetAside(const std::string& directory, const std::vector<std::string>& names,
                            std::chrono::seconds longestCommand) {
  std::size_t restored = 0;
  for (const std::string& name : names) {
    const std::string path = (fs::path(directory) / name).string();
    const std::string aside = path + "_temp";
    struct stat status {};
    // Another name changes the time of the status, and nothing else.
    const bool isOld = ::lstat(aside.c_str(), &status) == 0 && S_ISREG(status.st_mode) &&
                       status.st_ctime < ::time(nullptr) - longestCommand.count();
    // A link fails where the name is taken, so nothing is ever replaced.
    if (!isOld || ::link(aside.c_str(), path.c_str()) != 0) continue;
    ::unlink(aside.c_str());
    ++restored;
  }
  return restored;
}

}  // namespace veldra::host
