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

/// What one look at a file tells.
struct FileHead {
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
  std::string_view bytes;      ///< The first bytes of a readable file, inside the caller's buffer.
};

/// Looks at a file and reads as many of its first bytes as fit into `buffer`. Links are followed;
/// only regular files are opened, so that no pipe or device can make this wait. May be called from
/// any thread.
FileHead readFileHead(const std::string& path, std::span<char> buffer);

}  // namespace veldra::host
