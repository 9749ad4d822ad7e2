#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "cm/host/Export.h"

namespace veldra {

/// Puts many texts into the order of their bytes, ascending; equal texts stay in their order.
///
/// Comparing whole texts is what a sort of 100,000 of them spends its time with. So the bytes that
/// all of them begin with are left out, the eight that follow are sorted as a number, and those
/// that are still equal are sorted the same way by what follows.
class VELDRA_CM_EXPORT KeyOrder {
 public:
  explicit KeyOrder(std::size_t expected);
  void add(std::string_view key);
  /// `places` says where in the order of adding the texts are that stand in a row now. Position i
  /// of the result is the position in that row of what comes there.
  std::vector<std::size_t> order(const std::vector<std::uint32_t>& places) const;

 private:
  struct Head {
    std::uint64_t bytes;  ///< The first that differ, the most significant first.
    std::uint32_t place;
    std::uint32_t position;
  };
  using Heads = std::span<Head>;

  std::string_view keyAt(std::size_t place) const;
  /// Sorts texts that are equal up to `from`.
  void sortFrom(Heads heads, std::size_t from, std::vector<Head>& scratch) const;
  /// Sorts, among texts in the order of their heads, those with the same head by what follows it.
  void sortEqual(Heads heads, std::size_t from, std::vector<Head>& scratch) const;
  static void sortByBytes(Heads heads, std::vector<Head>& scratch);

  std::size_t m_expected;
  std::size_t m_common = 0;  ///< How many bytes all texts begin with.
  std::string m_bytes;
  std::vector<std::size_t> m_starts;  ///< Of each text in the bytes, and the end of the last.
};

}  // namespace veldra
