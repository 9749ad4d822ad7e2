#include "cm/ui/logic/KeyOrder.h"

#include <algorithm>
#include <array>
#include <utility>

namespace veldra {

namespace {

constexpr std::size_t HeadLength = sizeof(std::uint64_t);
constexpr unsigned ByteBits = 8;
// Larger digits need fewer rounds, as long as their counts stay near the processor.
constexpr unsigned DigitBits = 11;
constexpr unsigned DigitCount = 6;
constexpr std::size_t DigitValues = std::size_t{1} << DigitBits;
/// Fewer are sorted by comparing, because counting digits would take longer.
constexpr std::size_t FewHeads = 4096;

std::size_t digitOf(std::uint64_t bytes, unsigned digit) {
  return bytes >> (digit * DigitBits) & (DigitValues - 1);
}

std::uint64_t headOf(std::string_view text) {
  std::uint64_t head = 0;
  if (text.size() >= HeadLength) {
    // Without a condition inside, compilers make two instructions of this.
    for (std::size_t i = 0; i < HeadLength; ++i) {
      head = head << ByteBits | static_cast<unsigned char>(text[i]);
    }
    return head;
  }
  for (const char c : text) head = head << ByteBits | static_cast<unsigned char>(c);
  return text.empty() ? 0 : head << (HeadLength - text.size()) * ByteBits;
}

/// How many bytes are equal in two texts, which are equal up to `from`; at most `until`.
std::size_t commonLength(std::string_view a, std::string_view b, std::size_t from,
                         std::size_t until) {
  const std::size_t end = std::min({a.size(), b.size(), until});
  while (from < end && a[from] == b[from]) ++from;
  return from;
}

}  // namespace

KeyOrder::KeyOrder(std::size_t expected) : m_expected(expected) {
  m_starts.reserve(expected + 1);
  m_starts.push_back(0);
}

void KeyOrder::add(std::string_view key) {
  // Texts of a list are about as long as each other.
  if (m_bytes.empty()) m_bytes.reserve(m_expected * (key.size() + HeadLength));
  m_bytes += key;
  const bool isFirst = m_starts.size() == 1;
  m_common = isFirst ? key.size() : commonLength(keyAt(0), key, 0, m_common);
  m_starts.push_back(m_bytes.size());
}

std::string_view KeyOrder::keyAt(std::size_t place) const {
  return {m_bytes.data() + m_starts[place], m_starts[place + 1] - m_starts[place]};
}

/// From the last digit to the first, each time keeping the order so far; digits in which no two
/// texts differ are skipped.
void KeyOrder::sortByBytes(Heads heads, std::vector<Head>& scratch) {
  const auto isLess = [](const Head& a, const Head& b) { return a.bytes < b.bytes; };
  if (std::is_sorted(heads.begin(), heads.end(), isLess)) return;
  if (heads.size() < FewHeads) return std::stable_sort(heads.begin(), heads.end(), isLess);
  std::array<std::array<std::uint32_t, DigitValues>, DigitCount> counts{};
  for (const Head& head : heads) {
    for (unsigned digit = 0; digit < DigitCount; ++digit)
      ++counts[digit][digitOf(head.bytes, digit)];
  }
  scratch.resize(std::max(scratch.size(), heads.size()));
  Heads from = heads;
  Heads into(scratch.data(), heads.size());
  for (unsigned digit = 0; digit < DigitCount; ++digit) {
    std::array<std::uint32_t, DigitValues>& places = counts[digit];
    if (places[digitOf(heads.front().bytes, digit)] == heads.size()) continue;
    std::uint32_t next = 0;
    for (std::uint32_t& place : places) next += std::exchange(place, next);
    for (const Head& head : from) into[places[digitOf(head.bytes, digit)]++] = head;
    std::swap(from, into);
  }
  if (from.data() != heads.data()) std::copy(from.begin(), from.end(), heads.begin());
}

void KeyOrder::sortFrom(Heads heads, std::size_t from, std::vector<Head>& scratch) const {
  const std::string_view first = keyAt(heads.front().place);
  std::size_t common = first.size();
  for (const Head& head : heads) {
    if (common == from) break;
    common = commonLength(first, keyAt(head.place), from, common);
  }
  for (Head& head : heads) head.bytes = headOf(keyAt(head.place).substr(common));
  sortByBytes(heads, scratch);
  sortEqual(heads, common + HeadLength, scratch);
}

void KeyOrder::sortEqual(Heads heads, std::size_t from, std::vector<Head>& scratch) const {
  const auto size = [this](const Head& head) { return keyAt(head.place).size(); };
  const auto isShorter = [&](const Head& a, const Head& b) { return size(a) < size(b); };
  for (std::size_t begin = 0; begin < heads.size();) {
    std::size_t end = begin + 1;
    while (end < heads.size() && heads[end].bytes == heads[begin].bytes) ++end;
    const Heads equal = heads.subspan(begin, end - begin);
    begin = end;
    if (equal.size() < 2) continue;
    const bool isAnyShort = std::any_of(equal.begin(), equal.end(),
                                        [&](const Head& head) { return size(head) <= from; });
    if (!isAnyShort) {
      sortFrom(equal, from, scratch);
      continue;
    }
    // Bytes of value zero at the end look like no bytes at all; the shorter text comes first.
    if (!std::is_sorted(equal.begin(), equal.end(), isShorter)) {
      std::stable_sort(equal.begin(), equal.end(), isShorter);
    }
    const auto longer = std::find_if(equal.begin(), equal.end(),
                                     [&](const Head& head) { return size(head) > from; });
    if (equal.end() - longer > 1) sortFrom({longer, equal.end()}, from, scratch);
  }
}

std::vector<std::size_t> KeyOrder::order(const std::vector<std::uint32_t>& places) const {
  // The first look at each text goes through them as they lie in memory.
  const std::size_t count = m_starts.size() - 1;
  std::vector<std::uint64_t> bytes;
  bytes.reserve(count);
  for (std::size_t place = 0; place < count; ++place) {
    bytes.push_back(headOf(keyAt(place).substr(m_common)));
  }
  std::vector<Head> heads;
  heads.reserve(places.size());
  for (const std::uint32_t place : places) {
    heads.push_back({bytes[place], place, static_cast<std::uint32_t>(heads.size())});
  }
  std::vector<Head> scratch;
  sortByBytes(heads, scratch);
  sortEqual(heads, m_common + HeadLength, scratch);
  std::vector<std::size_t> order;
  order.reserve(heads.size());
  for (const Head& head : heads) order.push_back(head.position);
  return order;
}

}  // namespace veldra
