#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "cm/host/Export.h"

namespace veldra {

/// Puts many texts into the order of their bytes, ascending; equal texts stay in their order.
///
/// Comparing whole texts is what a sort of 100,000 of them spends its time with. So the bytes that
/// all of them begin with are left out, and the eight that follow are sorted as a number.
class VELDRA_CM_EXPORT KeyOrder {
 public:
  explicit KeyOrder(std::size_t expected);
  void add(std::string_view key);
  /// Position i of the result says which of the added texts comes there.
  std::vector<std::size_t> order() const;

 private:
  struct Head {
    std::uint64_t bytes;  ///< The first that differ, the most significant first.
    std::uint32_t place;
  };

  std::string_view keyAt(std::size_t place) const;
  std::size_t commonLength() const;
  std::vector<Head> heads(std::size_t from) const;
  static void sortByBytes(std::vector<Head>& heads);
  void sortEqualHeads(std::vector<Head>& heads) const;

  std::string m_bytes;
  std::vector<std::size_t> m_starts;  ///< Of each text in the bytes.
};

}  // namespace veldra
