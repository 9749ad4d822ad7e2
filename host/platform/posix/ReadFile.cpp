#include <errno.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "host/platform/AtomicFile.h"
#include "host/platform/ReadToEnd.h"
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

ReadStep readOnce(int file, std::span<char> room) {
  for (;;) {
    const ssize_t count = ::read(file, room.data(), room.size());
    if (count >= 0) return {static_cast<std::size_t>(count), 0};
    if (errno != EINTR) return {0, errno};
  }
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
  try {
    return readToEnd(
        path, static_cast<std::size_t>(status.st_size), limit,
        [&](std::span<char> room) { return readOnce(file.get(), room); }, unreadable);
  } catch (const std::bad_alloc&) {
    return unreadable(path, ENOMEM);
  }
}

}  // namespace veldra::host
