#pragma once

#include <span>
#include <string>
#include <string_view>

namespace veldra::host {

/// The name that needs the fewest letters changed, added or left out to become `wrong`, the case of
/// letters aside. Empty when none is near enough to have been meant.
std::string nearestName(std::string_view wrong, std::span<const std::string> names);

}  // namespace veldra::host
