#include "cm/ui/logic/KeyOrder.h"

#include <algorithm>
#include <array>
#include <utility>

namespace veldra {

namespace {

constexpr std::size_t HeadLength = sizeof(std::uint64_t);
constexpr unsigned ByteBits = 8;

std::uint64_t headOf(std::string_view text) {
  std::uint64_t head = 0;
  for (std::size_t i = 0; i < HeadLength; ++i) {
    head = head << ByteBits | (i < text.size() ? static_cast<unsigned char>(text[i]) : 0U);
  }
  return head;
}

}  // namespace

KeyOrder::KeyOrder(std::size_t expected) {
  m_starts.reserve(expected);
}

void KeyOrder::add(std::string_view key) {
  m_starts.push_back(m_bytes.size());
  m_bytes += key;
}

std::string_view KeyOrder::keyAt(std::size_t place) const {
  const std::size_t end = place + 1 < m_starts.size() ? m_starts[place + 1] : m_bytes.size();
  return std::string_view(m_bytes).substr(m_starts[place], end - m_starts[place]);
}

std::size_t KeyOrder::commonLength() const {
  std::string_view common = m_starts.empty() ? std::string_view() : keyAt(0);
  for (std::size_t place = 1; place < m_starts.size() && !common.empty(); ++place) {
    const std::string_view key = keyAt(place);
    const auto differs = std::mismatch(common.begin(), common.end(), key.begin(), key.end()).first;
    common = common.substr(0, static_cast<std::size_t>(differs - common.begin()));
  }
  return common.size();
}

std::vector<KeyOrder::Head> KeyOrder::heads(std::size_t from) const {
  std::vector<Head> heads;
  heads.reserve(m_starts.size());
  for (std::size_t place = 0; place < m_starts.size(); ++place) {
    heads.push_back({headOf(keyAt(place).substr(from)), static_cast<std::uint32_t>(place)});
  }
  return heads;
}

/// From the last byte to the first, each time keeping the order so far; bytes in which no two texts
/// differ are skipped.
void KeyOrder::sortByBytes(std::vector<Head>& heads) {
  std::array<std::array<std::size_t, 256>, HeadLength> counts{};
  for (const Head& head : heads) {
    for (unsigned byte = 0; byte < HeadLength; ++byte) {
      ++counts[byte][head.bytes >> (byte * ByteBits) & 0xFF];
    }
  }
  std::vector<Head> sorted(heads.size());
  for (unsigned byte = 0; byte < HeadLength && !heads.empty(); ++byte) {
    std::array<std::size_t, 256>& places = counts[byte];
    if (places[heads.front().bytes >> (byte * ByteBits) & 0xFF] == heads.size()) continue;
    std::size_t next = 0;
    for (std::size_t& place : places) next += std::exchange(place, next);
    for (const Head& head : heads) sorted[places[head.bytes >> (byte * ByteBits) & 0xFF]++] = head;
    heads.swap(sorted);
  }
}

void KeyOrder::sortEqualHeads(std::vector<Head>& heads) const {
  const auto isLess = [this](const Head& a, const Head& b) {
    return keyAt(a.place) < keyAt(b.place);
  };
  for (auto begin = heads.begin(); begin != heads.end();) {
    const auto end = std::find_if(begin, heads.end(),
                                  [begin](const Head& head) { return head.bytes != begin->bytes; });
    if (!std::is_sorted(begin, end, isLess)) std::stable_sort(begin, end, isLess);
    begin = end;
  }
}

std::vector<std::size_t> KeyOrder::order() const {
  std::vector<Head> sorted = heads(commonLength());
  sortByBytes(sorted);
  sortEqualHeads(sorted);
  std::vector<std::size_t> order;
  order.reserve(sorted.size());
  for (const Head& head : sorted) order.push_back(head.place);
  return order;
}

}  // namespace veldra
