#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace veldra::host {

/// The system's form of a text in UTF-8. Nothing when the bytes are no UTF-8.
[[nodiscard]] std::optional<std::wstring> toWide(std::string_view text);

/// A text of the system's in UTF-8; what is no text in it becomes the replacement character.
[[nodiscard]] std::string fromWide(std::wstring_view text);

/// The name of a file as the system's functions take it: with the system's separators, and in the
/// form without a limit where it is long. Empty, which names nothing, for a name with a NUL byte
/// and for one that is no UTF-8.
[[nodiscard]] std::wstring nativePath(std::string_view path);

/// Such a name as people write it, without the sign of the form without a limit.
[[nodiscard]] std::string fromNativePath(std::wstring_view path);

}  // namespace veldra::host
