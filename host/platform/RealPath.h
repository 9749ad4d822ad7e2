#pragma once

#include <string>

namespace veldra::host {

/// The absolute form of a file's or directory's name with all links resolved, and spelled as the
/// disk has it where capital letters make no difference. Empty when it does not exist.
[[nodiscard]] std::string realPath(const std::string& path);

}  // namespace veldra::host
