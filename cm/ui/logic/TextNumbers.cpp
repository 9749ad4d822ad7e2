#include "cm/ui/logic/TextNumbers.h"

#include <bit>
#include <limits>

namespace veldra {

std::uint64_t TextNumbers::rankAt(std::size_t position) {
  // A text that has ended comes before all that go on.
  std::uint16_t count = position >= m_shortest ? 1 : 0;
  for (std::uint16_t& rank : m_ranks[position]) {
    if (rank != 0) rank = count++;
  }
  return std::max<std::uint16_t>(count, 1);
}

void TextNumbers::finish() {
  constexpr std::uint64_t limit = std::numeric_limits<std::uint64_t>::max();
  std::array<std::uint64_t, Positions> counts{};
  std::uint64_t largest = 0;
  for (; m_length < Positions; ++m_length) {
    const std::uint64_t count = rankAt(m_length);
    if (largest > (limit - (count - 1)) / count) break;
    largest = largest * count + (count - 1);
    counts[m_length] = count;
  }
  m_bits = static_cast<unsigned>(std::bit_width(largest));
  std::uint64_t weight = 1;
  for (std::size_t position = m_length; position-- > 0;) {
    m_weights[position] = weight;
    weight *= counts[position];
  }
}

}  // namespace veldra
