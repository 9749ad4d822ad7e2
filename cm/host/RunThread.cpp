#include "cm/host/RunThread.h"

#include <algorithm>

namespace veldra {

namespace {
// Large enough that a flood needs few allocations, small enough that a short answer stays small.
constexpr std::size_t LargestPiece = std::size_t{1} << 20;
}  // namespace

void LineList::append(std::string_view bytes) {
  m_size += bytes.size();
  while (!bytes.empty()) {
    if (m_pieces.empty() || m_pieces.back().size() >= LargestPiece) {
      m_pieces.emplace_back();
      if (m_pieces.size() > 1) m_pieces.back().reserve(LargestPiece);
    }
    std::string& piece = m_pieces.back();
    const std::size_t room = std::min(bytes.size(), LargestPiece - piece.size());
    piece.append(bytes.substr(0, room));
    bytes.remove_prefix(room);
  }
}

void LineList::appendTo(std::string& text) const {
  text.reserve(text.size() + m_size);
  for (const std::string& piece : m_pieces) text.append(piece);
}

}  // namespace veldra
