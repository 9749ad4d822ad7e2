#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "cm/host/Export.h"

namespace veldra {

/// What in `text` a command line cannot carry, in words for the user; nothing when it is safe
/// between double quotes. Values are expanded again and the redirection sign counts even in quotes,
/// so no quoting helps against these.
VELDRA_CM_EXPORT std::optional<std::string> unsafeInCommand(std::string_view text);

/// The same for the full name of a unit's file. A backslash in it would pass for a separator, even
/// where the system has another one, and the command would name a file that is not there.
VELDRA_CM_EXPORT std::optional<std::string> unsafeAsFileName(std::string_view path);

}  // namespace veldra
