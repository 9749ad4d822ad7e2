#include "cm/host/RunThread.h"

#include <algorithm>

namespace veldra {

namespace {
// Most tools say little; a flood needs few allocations, each as large as all before it.
constexpr std::size_t FirstPiece = std::size_t{64} << 10;
constexpr std::size_t LargestPiece = std::size_t{16} << 20;
}  // namespace

std::span<char> LineList::room() {
  if (m_pieces.empty() || m_pieces.back().size == m_pieces.back().capacity) {
    const std::size_t capacity = std::clamp(m_size, FirstPiece, LargestPiece);
    m_pieces.push_back({std::make_unique_for_overwrite<char[]>(capacity), capacity, 0});
  }
  const Piece& piece = m_pieces.back();
  return {piece.bytes.get() + piece.size, piece.capacity - piece.size};
}

void LineList::took(std::size_t count) {
  m_pieces.back().size += count;
  m_size += count;
}

void LineList::append(std::string_view bytes) {
  while (!bytes.empty()) {
    const std::span<char> space = room();
    const std::size_t count = std::min(bytes.size(), space.size());
    std::copy_n(bytes.data(), count, space.data());
    took(count);
    bytes.remove_prefix(count);
  }
}

void LineList::appendTo(std::string& text) const {
  text.reserve(text.size() + m_size);
  for (const Piece& piece : m_pieces) text.append(piece.bytes.get(), piece.size);
}

}  // namespace veldra
