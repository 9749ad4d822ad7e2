#include "host/platform/ContentHash.h"

#include <sha2.h>

#include <array>
#include <cstdint>

namespace veldra::host {

std::string contentHash(std::string_view bytes) {
  SHA2_CTX state;
  SHA256Init(&state);
  SHA256Update(&state, reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
  std::array<std::uint8_t, SHA256_DIGEST_LENGTH> digest{};
  SHA256Final(digest.data(), &state);
  return hexDigits(digest);
}

}  // namespace veldra::host
