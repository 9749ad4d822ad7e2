#pragma once

#include <fcntl.h>
#include <unistd.h>

#include <utility>

namespace veldra::host {

/// Owns a descriptor and closes it.
class FileDescriptor {
 public:
  explicit FileDescriptor(int number = -1) : m_number(number) {}
  ~FileDescriptor() { reset(); }
  FileDescriptor(FileDescriptor&& other) noexcept : m_number(std::exchange(other.m_number, -1)) {}
  FileDescriptor& operator=(FileDescriptor&& other) noexcept {
    if (this != &other) reset(std::exchange(other.m_number, -1));
    return *this;
  }

  explicit operator bool() const { return m_number >= 0; }
  int get() const { return m_number; }

  void reset(int number = -1) {
    if (m_number >= 0) ::close(m_number);
    m_number = number;
  }

 private:
  int m_number;
};

/// The same file under a number that a child's standard descriptors cannot overwrite. A program
/// that was started with its own ones closed gets their numbers for what it opens.
inline FileDescriptor aboveStandard(FileDescriptor file) {
  if (!file || file.get() > STDERR_FILENO) return file;
  return FileDescriptor(::fcntl(file.get(), F_DUPFD_CLOEXEC, STDERR_FILENO + 1));
}

}  // namespace veldra::host
