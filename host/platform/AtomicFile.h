#pragma once

#include <chrono>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "host/platform/Result.h"

namespace veldra::host {

enum class ReadOnlyFile {
  Refuse,   ///< A file that its owner may not write stays as it is.
  Replace,  ///< It is replaced, and stays read-only.
};

/// Replaces a file, or makes a new one, as a whole: readers see the old bytes or the new ones, and
/// after a failure of any kind, a crash of the machine included, the old file is whole.
///
/// The bytes go to a new file in the same directory, which takes over the old one's mode and owner
/// and then its name. A symbolic link stays, its target is replaced. Only regular files are
/// replaced.
///
/// Nothing on success; otherwise a sentence that names the file and the reason.
[[nodiscard]] std::optional<std::string> writeFileAtomically(
    const std::string& path, std::string_view bytes, ReadOnlyFile readOnly = ReadOnlyFile::Refuse);

/// The bytes of a regular file, or a sentence that names the file and why it cannot be read: it is
/// missing, a directory, not permitted, or longer than `limit` bytes.
Result<std::string> readFile(const std::string& path, std::size_t limit);

/// Removes the files that `writeFileAtomically` left in a directory when its process was killed.
/// Those of processes that still live stay. Returns how many were removed.
std::size_t removeStaleTemporaries(const std::string& directory);

/// Gives files back the name that they had before a comparison set them aside as "NAME_temp" and
/// was killed. Only those come back whose name is free and that have been aside for longer than a
/// command runs. Returns how many.
std::size_t restoreSetAside(const std::string& directory, const std::vector<std::string>& names,
                            std::chrono::seconds longestCommand = std::chrono::minutes(15));

}  // namespace veldra::host
