#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace veldra {

/// A text that the provider may change in place. There is room for the text that goes in and for
/// every length that the interface publishes, and some more behind it: providers fill buffers to
/// the last byte and beyond, and leave out the final NUL.
class ProviderBuffer {
 public:
  /// `size` is the published one, with its NUL.
  explicit ProviderBuffer(std::size_t size, std::string_view text = {})
      : m_bytes(std::max(size, text.size() + 1) + Slack) {
    std::ranges::copy(text, m_bytes.begin());
  }

  char* data() { return m_bytes.data(); }
  /// Up to the first NUL, and never more than the buffer was said to hold.
  std::string text() const {
    const auto end = m_bytes.end() - static_cast<std::ptrdiff_t>(Slack);
    return {m_bytes.begin(), std::find(m_bytes.begin(), end, '\0')};
  }

 private:
  static constexpr std::size_t Slack = 512;
  std::vector<char> m_bytes;
};

}  // namespace veldra
