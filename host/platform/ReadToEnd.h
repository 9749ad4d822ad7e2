#pragma once

#include <algorithm>
#include <cstddef>
#include <span>
#include <string>

#include "host/platform/Result.h"

namespace veldra::host {

/// How reading a file went, in the system's terms.
struct ReadStep {
  std::size_t count = 0;  ///< 0 at the end of the file.
  int error = 0;          ///< The system's error number.
};

[[nodiscard]] inline Result<std::string> tooLarge(const std::string& path, std::size_t limit) {
  return Result<std::string>::failure("'" + path + "' is longer than the " + std::to_string(limit) +
                                      " bytes that are read.");
}

/// Reads to the end by `read`, which fills a part of the room that it is given, once. `expected` is
/// what the file system says of the size, which may be out of date. `unreadable` words an error.
template <class Read, class Unreadable>
Result<std::string> readToEnd(const std::string& path, std::size_t expected, std::size_t limit,
                              Read read, Unreadable unreadable) {
  if (expected > limit) return tooLarge(path, limit);
  std::string bytes;
  std::size_t filled = 0;
  for (;;) {
    // The byte beyond what is expected shows the end of the file without another round.
    if (filled == bytes.size()) bytes.resize(std::max(expected, filled * 2) + 1);
    const ReadStep step = read(std::span(bytes).subspan(filled));
    if (step.error != 0) return unreadable(path, step.error);
    if (step.count == 0) break;
    filled += step.count;
    if (filled > limit) return tooLarge(path, limit);
  }
  bytes.resize(filled);
  return bytes;
}

}  // namespace veldra::host
