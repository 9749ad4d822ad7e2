#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace veldra::host {

/// Why Windows cannot keep a file of that name, as a sentence that names it: a part of the path is
/// a device's name ("con", "nul.txt"), ends with a dot or a blank, or has a character that no name
/// may have. Nothing for a name that is in order. Both separators count; a drive or a share at the
/// beginning, "." and ".." are no names.
[[nodiscard]] std::optional<std::string> windowsNameProblem(std::string_view path);

/// Whether a path is complete by the rules of Windows: a drive and its root (C:\x, C:/x), or a
/// share (\\server\share). "\x" and "C:x" are not; the present drive or folder completes them.
[[nodiscard]] bool isAbsoluteOnWindows(std::string_view path);

}  // namespace veldra::host
