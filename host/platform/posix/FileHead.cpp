#include "host/platform/FileHead.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "host/platform/SystemError.h"

namespace veldra::host {
namespace {

FileHead::State stateOfError(int number) {
  if (number == ENOENT || number == ENOTDIR || number == ELOOP) return FileHead::State::Missing;
  if (number == EACCES || number == EPERM) return FileHead::State::NotPermitted;
  return FileHead::State::Unreadable;
}

void fail(FileFacts& head, int number) {
  head.state = stateOfError(number);
  head.error = systemErrorText(number);
}

std::int64_t nanoseconds(const struct timespec& time) {
  return std::int64_t{time.tv_sec} * 1'000'000'000 + time.tv_nsec;
}

void takeFacts(FileFacts& head, const struct stat& facts) {
  head.ownerMayWrite = (facts.st_mode & S_IWUSR) != 0;
  head.size = static_cast<std::uint64_t>(facts.st_size);
  head.identity = {static_cast<std::uint64_t>(facts.st_dev),
                   static_cast<std::uint64_t>(facts.st_ino)};
  head.changed = nanoseconds(facts.st_ctim);
  head.written = nanoseconds(facts.st_mtim);
  head.state = S_ISREG(facts.st_mode) ? FileHead::State::Readable : FileHead::State::NotAFile;
}

/// Reads until the buffer is full or the file ends; the number of bytes, or -1.
ssize_t readFully(int file, std::span<char> buffer) {
  std::size_t filled = 0;
  while (filled < buffer.size()) {
    const ssize_t got = ::read(file, buffer.data() + filled, buffer.size() - filled);
    if (got < 0 && errno == EINTR) continue;
    if (got < 0) return -1;
    if (got == 0) break;
    filled += static_cast<std::size_t>(got);
  }
  return static_cast<ssize_t>(filled);
}

void readOpenFile(FileHead& head, int file, std::span<char> buffer) {
  struct stat facts {};
  if (::fstat(file, &facts) != 0) return fail(head, errno);
  takeFacts(head, facts);
  if (head.state != FileHead::State::Readable) return;
  // One read more than needed would only say that the file has ended.
  const std::size_t wanted =
      head.size < buffer.size() ? static_cast<std::size_t>(head.size) : buffer.size();
  const ssize_t got = readFully(file, buffer.first(wanted));
  if (got < 0) return fail(head, errno);
  head.bytes = std::string_view(buffer.data(), static_cast<std::size_t>(got));
}

}  // namespace

FileFacts readFileFacts(const std::string& path) {
  FileFacts result;
  struct stat facts {};
  if (::stat(path.c_str(), &facts) == 0) {
    takeFacts(result, facts);
  } else {
    fail(result, errno);
  }
  return result;
}

FileHead readFileHead(const std::string& path, std::span<char> buffer) {
  FileHead head;
  const int file = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
  if (file < 0) {
    const int reason = errno;
    struct stat facts {};
    // A file that may not be read still has a mode and an identity.
    if (::stat(path.c_str(), &facts) == 0) takeFacts(head, facts);
    fail(head, reason);
    return head;
  }
  readOpenFile(head, file, buffer);
  ::close(file);
  return head;
}

}  // namespace veldra::host
