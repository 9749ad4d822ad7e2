#pragma once

#include <string>
#include <string_view>

namespace veldra::host {

/// The SHA-256 digest (FIPS 180-4) of the bytes as 64 lower-case hexadecimal digits: two texts that
/// somebody has made to look alike do not share it. Empty when the system's library refuses.
[[nodiscard]] std::string contentHash(std::string_view bytes);

}  // namespace veldra::host
