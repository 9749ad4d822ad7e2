#pragma once

#include <optional>
#include <string>

#include "host/model/Property.h"

namespace veldra::host {

/// Sets one property in a settings file and leaves all other lines, comments included, as they are.
/// The file and its directory are made when they do not exist. Nothing on success, otherwise a
/// sentence that says why not; then the file is unchanged.
[[nodiscard]] std::optional<std::string> setTomlProperty(const std::string& file,
                                                         const PropertyKey& key,
                                                         const std::string& value);

/// Takes a property out of a settings file; the same holds. Nothing happens when it is not there.
[[nodiscard]] std::optional<std::string> removeTomlProperty(const std::string& file,
                                                            const PropertyKey& key);

}  // namespace veldra::host
