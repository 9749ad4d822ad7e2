#include "host/platform/ContentHash.h"

#include <openssl/evp.h>

#include <array>

namespace veldra::host {

std::string contentHash(std::string_view bytes) {
  std::array<unsigned char, EVP_MAX_MD_SIZE> digest{};
  unsigned size = 0;
  if (EVP_Digest(bytes.data(), bytes.size(), digest.data(), &size, EVP_sha256(), nullptr) != 1) {
    return {};
  }
  return hexDigits({digest.data(), size});
}

}  // namespace veldra::host
