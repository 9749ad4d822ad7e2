#include "host/platform/ContentHash.h"

#include <windows.h>

#include <bcrypt.h>

#include <algorithm>
#include <array>

namespace veldra::host {

namespace {

constexpr std::size_t DigestSize = 32;
using Digest = std::array<UCHAR, DigestSize>;

/// The system's SHA-256; opening it costs more than most texts.
class Algorithm {
 public:
  Algorithm() {
    if (BCryptOpenAlgorithmProvider(&m_handle, BCRYPT_SHA256_ALGORITHM, nullptr, 0) < 0)
      m_handle = nullptr;
  }
  ~Algorithm() {
    if (m_handle != nullptr) BCryptCloseAlgorithmProvider(m_handle, 0);
  }
  Algorithm(const Algorithm&) = delete;
  Algorithm& operator=(const Algorithm&) = delete;

  bool digestOf(std::string_view bytes, Digest& digest) const {
    BCRYPT_HASH_HANDLE hash = nullptr;
    if (m_handle == nullptr || BCryptCreateHash(m_handle, &hash, nullptr, 0, nullptr, 0, 0) < 0)
      return false;
    bool isDone = true;
    while (isDone && !bytes.empty()) {
      const std::string_view part = bytes.substr(0, std::size_t{1} << 30);
      auto* const data = reinterpret_cast<PUCHAR>(const_cast<char*>(part.data()));
      isDone = BCryptHashData(hash, data, static_cast<ULONG>(part.size()), 0) >= 0;
      bytes.remove_prefix(part.size());
    }
    isDone = isDone && BCryptFinishHash(hash, digest.data(), DigestSize, 0) >= 0;
    BCryptDestroyHash(hash);
    return isDone;
  }

 private:
  BCRYPT_ALG_HANDLE m_handle = nullptr;
};

}  // namespace

std::string contentHash(std::string_view bytes) {
  static const Algorithm algorithm;
  Digest digest{};
  return algorithm.digestOf(bytes, digest) ? hexDigits(digest) : std::string();
}

}  // namespace veldra::host
