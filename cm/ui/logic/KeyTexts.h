#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace veldra {

/// Many texts, one behind the other in memory.
class KeyTexts {
 public:
  KeyTexts() = default;
  explicit KeyTexts(std::size_t expected) : m_expected(expected) { m_ends.reserve(expected); }

  void add(std::string_view text) {
    // Texts of a list are about as long as each other.
    if (m_ends.empty()) m_bytes.reserve(m_expected * (text.size() + SpareLength));
    m_bytes += text;
    m_ends.push_back(m_bytes.size());
  }
  std::string_view at(std::size_t index) const {
    const std::size_t start = index == 0 ? 0 : m_ends[index - 1];
    return {m_bytes.data() + start, m_ends[index] - start};
  }
  std::size_t size() const { return m_ends.size(); }
  std::size_t byteCount() const { return m_bytes.size(); }
  /// No more will be added.
  void giveBackSpare() { m_bytes.shrink_to_fit(); }

 private:
  /// Room for an average text that is longer than the first.
  static constexpr std::size_t SpareLength = 8;

  std::size_t m_expected = 0;
  std::string m_bytes;
  std::vector<std::size_t> m_ends;
};

}  // namespace veldra
