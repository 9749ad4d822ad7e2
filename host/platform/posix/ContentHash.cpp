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
  constexpr char Digits[] = "0123456789abcdef";
  std::string text;
  for (unsigned i = 0; i < size; ++i) {
    text += Digits[digest.at(i) >> 4U];
    text += Digits[digest.at(i) & 0xFU];
  }
  return text;
}

}  // namespace veldra::host
