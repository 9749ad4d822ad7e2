#include <errno.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "host/platform/AtomicFile.h"
#include "host/platform/SystemError.h"
#include "host/platform/posix/FileDescriptor.h"

namespace veldra::host {

namespace {

using Contents = Result<std::string>;

Contents unreadable(const std::string& path, int error) {
  if (error == ENOENT) return Contents::failure("'" + path + "' does not exist.");
  if (error == EACCES || error == EPERM) {
    return Contents::failure("'" + path + "' cannot be read: there is no permission to read it.");
  }
  return Contents::failure("'" + path + "' cannot be read: " + systemErrorText(error) + ".");
}

Contents tooLarge(const std::string& path, std::size_t limit) {
  return Contents::failure("'" + path + "' is longer than the " + std::to_string(limit) +
                           " bytes that are read.");
}

/// Reads to the end; `expected` is what the file system says of the size, which may be out of date.
Contents readAll(const std::string& path, int file, std::size_t expected, std::size_t limit) {
  std::string bytes;
  std::size_t filled = 0;
  for (;;) {
    // The byte beyond what is expected shows the end of the file without another round.
    if (filled == bytes.size()) bytes.resize(std::max(expected, filled * 2) + 1);
    const ssize_t count = ::read(file, bytes.data() + filled, bytes.size() - filled);
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return unreadable(path, errno);
    if (count == 0) break;
    filled += static_cast<std::size_t>(count);
    if (filled > limit) return tooLarge(path, limit);
  }
  bytes.resize(filled);
  return bytes;
}

}  // namespace

Result<std::string> readFile(const std::string& path, std::size_t limit) {
  if (path.find('\0') != std::string::npos) return unreadable(path, EINVAL);
  // Without O_NONBLOCK, opening a pipe would wait for somebody to write it.
  const FileDescriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
  struct stat status {};
  if (!file || ::fstat(file.get(), &status) != 0) return unreadable(path, errno);
  if (S_ISDIR(status.st_mode))
    return Contents::failure("'" + path + "' is a directory, not a file.");
  if (!S_ISREG(status.st_mode)) return Contents::failure("'" + path + "' is not a regular file.");
  const auto size = static_cast<std::size_t>(status.st_size);
  if (size > limit) return tooLarge(path, limit);
  try {
    return readAll(path, file.get(), size, limit);
  } catch (const std::bad_alloc&) {
    return unreadable(path, ENOMEM);
  }
}

}  // namespace veldra::host
