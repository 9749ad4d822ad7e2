#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace veldra::host {

/// Tells one file from another, whatever names they have.
struct FileIdentity {
  std::uint64_t device = 0;
  std::uint64_t file = 0;
  bool operator==(const FileIdentity&) const = default;
};

/// What the system tells about a file that nobody has opened.
struct FileFacts {
  enum class State {
    Readable,
    Missing,       ///< There is no such file, or it is a link that leads nowhere.
    NotAFile,      ///< A directory, a pipe, a device.
    NotPermitted,  ///< It exists, but may not be read.
    Unreadable,    ///< The system gave another reason; see `error`.
  };
  State state = State::Missing;
  std::string error;           ///< The system's words; empty for a readable file.
  bool ownerMayWrite = false;  ///< The owner's mode bit (on Windows: no read-only attribute).
  std::uint64_t size = 0;      ///< In bytes.
  FileIdentity identity;       ///< Of the file that a link leads to.
  /// When content, mode or owner last changed, in nanoseconds since 1970 by the clock of the file
  /// system; no program can set it back. 0 where the system keeps no such time.
  std::int64_t changed = 0;
  /// When the content was last written, in nanoseconds since 1970; programs can set it.
  std::int64_t written = 0;
};

/// What one look into a file tells.
struct FileHead : FileFacts {
  std::string_view bytes;  ///< The first bytes of a readable file, inside the caller's buffer.
};

/// Looks at a file without opening it. Links are followed. A file that may not be read counts as
/// readable here. May be called from any thread.
FileFacts readFileFacts(const std::string& path);

/// Looks at a file and reads as many of its first bytes as fit into `buffer`. Links are followed;
/// only regular files are opened, so that no pipe or device can make this wait. May be called from
/// any thread.
FileHead readFileHead(const std::string& path, std::span<char> buffer);

}  // namespace veldra::host
