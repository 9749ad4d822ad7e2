#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "host/platform/AtomicFile.h"

namespace veldra::host {

/// The sentence that a file could not be written, and why.
[[nodiscard]] std::string unwritten(const std::string& path, std::string_view reason);

/// What the system says of a file that is to be replaced.
struct PresentFile {
  bool isDirectory = false;
  bool isRegular = true;
  bool isReadOnly = false;
};

/// Why the present file must not be replaced; nothing when it may be.
[[nodiscard]] std::optional<std::string> objection(const std::string& path, PresentFile present,
                                                   ReadOnlyFile readOnly);

/// `writeFileAtomically` as the room has it. May throw; `path` has no NUL byte and is not empty.
[[nodiscard]] std::optional<std::string> replaceFile(const std::string& path,
                                                     std::string_view bytes, ReadOnlyFile readOnly);

}  // namespace veldra::host
