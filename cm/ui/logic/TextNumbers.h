#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "cm/host/Export.h"

namespace veldra {

/// Says the beginnings of many texts as numbers that compare as their bytes do.
///
/// A position in a text is a digit of the number, with as many values as different bytes stand
/// there in any of the texts. Where all have the same byte it takes no room, and among numerals
/// little; so a number holds two or three times as many bytes as its own size.
class VELDRA_CM_EXPORT TextNumbers {
 public:
  /// Every text has to be seen before the first number is made.
  void see(std::string_view text) {
    m_shortest = std::min(m_shortest, text.size());
    const std::size_t length = std::min(text.size(), Positions);
    for (std::size_t i = 0; i < length; ++i) m_ranks[i][byteAt(text, i)] = 1;
  }
  /// All have been seen.
  void finish();

  std::uint64_t of(std::string_view text) const {
    std::uint64_t number = 0;
    const std::size_t length = std::min(text.size(), m_length);
    for (std::size_t i = 0; i < length; ++i) number += m_ranks[i][byteAt(text, i)] * m_weights[i];
    return number;
  }
  /// How many bytes of a text its number holds. Shorter texts with the same number are equal.
  std::size_t length() const { return m_length; }
  /// How many bits the largest number has.
  unsigned bits() const { return m_bits; }

 private:
  static constexpr std::size_t Positions = 32;
  static constexpr std::size_t ByteValues = 256;

  static unsigned char byteAt(std::string_view text, std::size_t position) {
    return static_cast<unsigned char>(text[position]);
  }
  /// Ranks the bytes that stand there, and says how many there are; the end of a text is one more.
  std::uint64_t rankAt(std::size_t position);

  /// By position and byte; before they are known, whether the byte stands there.
  std::array<std::array<std::uint16_t, ByteValues>, Positions> m_ranks{};
  std::array<std::uint64_t, Positions> m_weights{};
  std::size_t m_shortest = static_cast<std::size_t>(-1);
  std::size_t m_length = 0;
  unsigned m_bits = 0;
};

}  // namespace veldra
