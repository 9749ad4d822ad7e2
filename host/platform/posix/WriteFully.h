#pragma once

#include <errno.h>
#include <unistd.h>

#include <string_view>

namespace veldra::host {

/// Writes all bytes, however many calls that takes. 0, or the system's error number.
[[nodiscard]] inline int writeFully(int descriptor, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = ::write(descriptor, bytes.data(), bytes.size());
    if (written >= 0) {
      bytes.remove_prefix(static_cast<std::size_t>(written));
    } else if (errno != EINTR) {
      return errno;
    }
  }
  return 0;
}

}  // namespace veldra::host
