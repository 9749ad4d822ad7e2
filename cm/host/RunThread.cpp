#include "cm/host/RunThread.h"

#include <algorithm>
#include <utility>

namespace veldra {

namespace {
// Most tools say little. A flood needs few allocations; each one is a promise of the system's until
// it is touched, so that it may be generous.
constexpr std::size_t FirstRoom = std::size_t{4} << 10;
constexpr std::size_t LargestRoom = std::size_t{8} << 20;
constexpr std::size_t LargestReserve = std::size_t{256} << 20;
}  // namespace

void LineList::makeRoom() {
  if (m_text.capacity() > m_size) return;
  m_text.resize(m_size);
  m_text.reserve(m_size + std::clamp(3 * m_size, FirstRoom, LargestReserve));
}

std::span<char> LineList::untouched() {
  makeRoom();
  return {m_text.data() + m_text.size(), m_text.capacity() - m_text.size()};
}

std::span<char> LineList::room() {
  if (m_text.size() == m_size) {
    makeRoom();
    const std::size_t size = m_size + std::clamp(m_size, FirstRoom, LargestRoom);
    m_text.resize(std::min(size, m_text.capacity()));
  }
  return std::span<char>(m_text).subspan(m_size);
}

void LineList::append(std::string_view bytes) {
  m_text.resize(m_size);
  m_text += bytes;
  m_size = m_text.size();
}

void LineList::moveTo(std::string& text) {
  m_text.resize(m_size);
  if (text.empty()) {
    text = std::move(m_text);
  } else {
    text += m_text;
  }
  m_text.clear();
  m_size = 0;
}

}  // namespace veldra
