#pragma once

#include <optional>
#include <string>

namespace veldra::host {

/// The hidden folder in which a project keeps what concerns this copy of it alone.
std::string recordsFolder(const std::string& projectFolder);

/// Makes it; tools that heed a file ".gitignore" leave it alone. Nothing on success, otherwise a
/// sentence that says why not.
[[nodiscard]] std::optional<std::string> makeRecordsFolder(const std::string& projectFolder);

/// The comment of the last check-in that failed; empty for none.
std::string lastComment(const std::string& projectFolder);

/// Remembers it; the empty one forgets. Nothing on success, otherwise a sentence that says why not.
[[nodiscard]] std::optional<std::string> rememberComment(const std::string& projectFolder,
                                                         const std::string& comment);

}  // namespace veldra::host
