#include "cm/host/RunThread.h"

#include <algorithm>
#include <utility>

namespace veldra {

namespace {
// Most tools say little. What a listing or a flood needs is a promise of the system's until it is
// touched, so it may be generous: to copy what has come takes longer.
constexpr std::size_t FirstRoom = std::size_t{4} << 10;
constexpr std::size_t ListingRoom = std::size_t{16} << 20;
constexpr std::size_t FloodRoom = std::size_t{256} << 20;
}  // namespace

void LineList::makeRoom(std::size_t bytes) {
  const std::size_t size = m_text.size();
  if (m_text.capacity() - size >= bytes) return;
  const std::size_t room = size == 0 ? FirstRoom : size < ListingRoom ? ListingRoom : FloodRoom;
  m_text.reserve(size + std::max(bytes, room));
}

std::span<char> LineList::untouched() {
  makeRoom(1);
  return {m_text.data() + m_text.size(), m_text.capacity() - m_text.size()};
}

void LineList::append(std::string_view bytes) {
  makeRoom(bytes.size());
  m_text += bytes;
}

void LineList::moveTo(std::string& text) {
  if (text.empty()) {
    text = std::move(m_text);
  } else {
    text += m_text;
  }
  m_text.clear();
}

}  // namespace veldra
