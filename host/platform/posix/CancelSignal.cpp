#include "host/platform/posix/CancelSignal.h"

#include <errno.h>
#include <fcntl.h>

#include <array>

namespace veldra::host {

CancelSignal::CancelSignal() {
  std::array<int, 2> ends{};
  if (::pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0) return;
  m_reader.reset(ends[0]);
  m_writer.reset(ends[1]);
}

void CancelSignal::raise() noexcept {
  const int interruptedError = errno;
  m_raised.store(true);
  // A full pipe is as readable as one with a byte more.
  [[maybe_unused]] const ssize_t written = ::write(m_writer.get(), "!", 1);
  errno = interruptedError;
}

void CancelSignal::clear() noexcept {
  std::array<char, 64> bytes;
  while (::read(m_reader.get(), bytes.data(), bytes.size()) > 0) {
  }
  m_raised.store(false);
}

}  // namespace veldra::host
