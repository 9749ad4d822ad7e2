#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace veldra::host {

inline constexpr char HostSeparator =
#if defined(_WIN32)
    '\\';
#else
    '/';
#endif

/// `directory`, a separator and `name`; just `name` when the directory is empty.
std::string joinPath(std::string_view directory, std::string_view name);

/// What follows the last host separator.
std::string_view baseName(std::string_view path);

/// What stands before the last host separator; empty when there is none.
std::string_view parentPath(std::string_view path);

/// The extension with its dot, in lower case; empty for a name without one. A name that only begins
/// with a dot has none.
std::string extensionOf(std::string_view fileName);

/// The name without its extension.
std::string_view stemOf(std::string_view fileName);

/// ASCII lower case; other bytes stay as they are.
std::string lowerCase(std::string_view text);

/// Whether `path` is `directory` itself or lies below it; both in the same absolute form.
bool isInside(std::string_view directory, std::string_view path);

/// A relative name in plain form: host separators, no ".", no "..", no doubled separators. Either
/// separator may be given. Nothing for an absolute name or one that leads out of its root.
std::optional<std::string> plainRelative(std::string_view name);

/// A relative name as model files keep it, with slashes on every system, so that a project made on
/// one opens on the others; and back.
std::string storedName(std::string relative);
std::string nameFromStored(std::string stored);

/// The absolute form of a name, "." and ".." taken out of it by its text alone.
std::string absolutePath(const std::string& path);

}  // namespace veldra::host
