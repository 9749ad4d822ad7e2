#pragma once

#include <span>
#include <string>
#include <string_view>

namespace veldra::host {

/// The SHA-256 digest (FIPS 180-4) of the bytes as 64 lower-case hexadecimal digits: two texts that
/// somebody has made to look alike do not share it. Empty when the system's library refuses.
[[nodiscard]] std::string contentHash(std::string_view bytes);

/// Two lower-case hexadecimal digits per byte.
[[nodiscard]] inline std::string hexDigits(std::span<const unsigned char> bytes) {
  constexpr char Digits[] = "0123456789abcdef";
  std::string text;
  for (const unsigned char byte : bytes) {
    text += Digits[byte >> 4U];
    text += Digits[byte & 0xFU];
  }
  return text;
}

}  // namespace veldra::host
