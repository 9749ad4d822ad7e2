#include "cm/ui/logic/KeyOrder.h"

#include <algorithm>
#include <array>
#include <bit>
#include <utility>

namespace veldra {

namespace {

// Larger digits need fewer rounds, as long as their counts stay near the processor.
constexpr unsigned DigitBits = 11;
constexpr std::size_t DigitValues = std::size_t{1} << DigitBits;
/// Fewer numbers are sorted by comparing, because counting digits would take longer.
constexpr std::size_t FewNumbers = 4096;
/// Fewer texts are compared as they are, because making numbers would take longer.
constexpr std::size_t FewTexts = 256;
/// So many ascending runs are merged sooner than they are sorted.
constexpr std::size_t FewRuns = 8;

}  // namespace

KeyOrder::KeyOrder(std::size_t expected) : m_texts(expected) {
  m_heads.reserve(expected);
}

void KeyOrder::add(std::string_view key, std::size_t position) {
  m_heads.push_back(
      {0, static_cast<std::uint32_t>(m_heads.size()), static_cast<std::uint32_t>(position)});
  m_texts.add(key);
  m_numbers.see(key);
}

std::vector<std::size_t> KeyOrder::order() {
  m_numbers.finish();
  for (Head& head : m_heads) head.number = m_numbers.of(keyOf(head));
  sort(m_heads, 0, m_numbers);
  std::vector<std::size_t> order;
  order.reserve(m_heads.size());
  for (const Head& head : m_heads) order.push_back(head.position);
  return order;
}

void KeyOrder::sort(Heads heads, std::size_t from, const TextNumbers& numbers) {
  sortByNumber(heads, numbers.bits());
  sortEqual(heads, from + numbers.length());
}

/// Sorts those with the same number, which says what stands before `from`.
void KeyOrder::sortEqual(Heads heads, std::size_t from) {
  for (std::size_t begin = 0; begin < heads.size();) {
    std::size_t end = begin + 1;
    while (end < heads.size() && heads[end].number == heads[begin].number) ++end;
    const Heads equal = heads.subspan(begin, end - begin);
    begin = end;
    if (equal.size() == 1) continue;
    if (keyOf(equal.front()).size() < from) {
      sortByPosition(equal);
    } else {
      sortFrom(equal, from);
    }
  }
}

/// Sorts texts that are equal up to `from`.
void KeyOrder::sortFrom(Heads heads, std::size_t from) {
  if (heads.size() < FewTexts) {
    return std::sort(heads.begin(), heads.end(), [&](const Head& a, const Head& b) {
      const int order = restOf(a, from).compare(restOf(b, from));
      return order != 0 ? order < 0 : a.position < b.position;
    });
  }
  TextNumbers numbers;
  for (const Head& head : heads) numbers.see(restOf(head, from));
  numbers.finish();
  for (Head& head : heads) head.number = numbers.of(restOf(head, from));
  sort(heads, from, numbers);
}

void KeyOrder::sortByPosition(Heads heads) {
  std::uint32_t largest = 0;
  for (Head& head : heads) {
    head.number = head.position;
    largest = std::max(largest, head.position);
  }
  sortByNumber(heads, static_cast<unsigned>(std::bit_width(largest)));
}

/// The order of equal numbers is open.
void KeyOrder::sortByNumber(Heads heads, unsigned bits) {
  const auto isLess = [](const Head& a, const Head& b) { return a.number < b.number; };
  const auto endOfRun = [&](Heads::iterator begin) {
    return std::is_sorted_until(begin, heads.end(), isLess);
  };
  auto sorted = endOfRun(heads.begin());
  for (std::size_t runs = 1; sorted != heads.end(); ++runs) {
    if (runs == FewRuns) return sortByDigits(heads, bits);
    const auto end = endOfRun(sorted);
    std::inplace_merge(heads.begin(), sorted, end, isLess);
    sorted = end;
  }
}

/// From the last digit to the first, each time keeping the order so far.
void KeyOrder::sortByDigits(Heads heads, unsigned bits) {
  if (heads.size() < FewNumbers) {
    return std::sort(heads.begin(), heads.end(),
                     [](const Head& a, const Head& b) { return a.number < b.number; });
  }
  m_scratch.resize(std::max(m_scratch.size(), heads.size()));
  Heads from = heads;
  Heads into(m_scratch.data(), heads.size());
  for (unsigned shift = 0; shift < bits; shift += DigitBits) {
    const auto digitOf = [shift](const Head& head) {
      return head.number >> shift & (DigitValues - 1);
    };
    std::array<std::uint32_t, DigitValues> next{};
    for (const Head& head : from) ++next[digitOf(head)];
    std::uint32_t sum = 0;
    for (std::uint32_t& place : next) sum += std::exchange(place, sum);
    for (const Head& head : from) into[next[digitOf(head)]++] = head;
    std::swap(from, into);
  }
  if (from.data() != heads.data()) std::copy(from.begin(), from.end(), heads.begin());
}

}  // namespace veldra
