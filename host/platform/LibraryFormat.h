#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace veldra::host {

/// Why a library of Windows cannot be loaded into this program, as a sentence that names it: its
/// header says that it was made for another kind of processor, above all for 32-bit programs.
/// `head` is the beginning of the file. Nothing when the header fits, or cannot be told.
[[nodiscard]] std::optional<std::string> foreignLibraryProblem(const std::string& path,
                                                               std::string_view head);

}  // namespace veldra::host
