#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "cm/host/Export.h"
#include "cm/ui/logic/KeyTexts.h"
#include "cm/ui/logic/LiveUnits.h"
#include "cm/ui/logic/UnitTexts.h"

namespace veldra {

/// Puts units into the order of one column: bytes compared, capitals apart from small letters,
/// ascending. Units with the same text stay in their order; those that are gone come last.
///
/// Commands change few texts of the column, mostly none. So the texts of the last time are kept:
/// each is compared with what the unit says now, and as long as all are the same, so is the order.
class VELDRA_CM_EXPORT WorkspaceOrder {
 public:
  /// The positions of the units in that order.
  std::vector<std::size_t> byColumn(const LiveUnits& units, const UnitTexts& texts,
                                    std::int32_t column);

 private:
  struct Kept {
    std::int32_t column;
    KeyTexts texts;  ///< By place.
    std::vector<std::uint32_t> order;
  };

  /// How many units, beginning with the first place, have the texts that are kept.
  std::size_t countSame(const LiveUnits& units, const UnitTexts& texts, std::int32_t column) const;
  void keep(std::int32_t column, KeyTexts texts, const std::vector<std::size_t>& order);

  std::optional<Kept> m_kept;
};

}  // namespace veldra
