#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <utility>
#include <vector>

#include "cm/host/Export.h"
#include "cm/ui/logic/KeyTexts.h"
#include "cm/ui/logic/TextNumbers.h"

namespace veldra {

/// Puts the texts of many rows into the order of their bytes, ascending; rows with equal texts stay
/// in their order.
///
/// Comparing whole texts is what a sort of 100,000 of them spends its time with. So their
/// beginnings are sorted as numbers, and those that are still equal by what follows. It takes least
/// when the texts come almost in their order, wherever their rows are.
class VELDRA_CM_EXPORT KeyOrder {
 public:
  explicit KeyOrder(std::size_t expected);
  /// The text of the row at that position.
  void add(std::string_view key, std::size_t position);
  /// The positions, in the order of their texts. Called once, when all have been added.
  std::vector<std::size_t> order();
  /// The texts as they were added, for whom they are of use afterwards.
  KeyTexts takeTexts() { return std::move(m_texts); }

 private:
  struct Head {
    std::uint64_t number;  ///< Says what the text begins with.
    std::uint32_t key;
    std::uint32_t position;
  };
  using Heads = std::span<Head>;

  std::string_view keyOf(const Head& head) const { return m_texts.at(head.key); }
  std::string_view restOf(const Head& head, std::size_t from) const {
    return keyOf(head).substr(from);
  }
  /// Sorts texts that are equal up to `from`; the heads have what these numbers say.
  void sort(Heads heads, std::size_t from, const TextNumbers& numbers);
  void sortFrom(Heads heads, std::size_t from);
  void sortEqual(Heads heads, std::size_t from);
  void sortByPosition(Heads heads);
  void sortByNumber(Heads heads, unsigned bits);
  void sortByDigits(Heads heads, unsigned bits);

  KeyTexts m_texts;
  std::vector<Head> m_heads;
  std::vector<Head> m_scratch;
  TextNumbers m_numbers;
};

}  // namespace veldra
