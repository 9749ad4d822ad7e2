#pragma once

#include <map>
#include <optional>
#include <string>

namespace veldra::host {

/// This process's environment with some variables set or replaced, in the form that a child is
/// started with. Empty when there is nothing to change; nothing when a text is not in UTF-8.
[[nodiscard]] std::optional<std::wstring> childEnvironment(
    const std::map<std::string, std::string>& variables);

}  // namespace veldra::host
