#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "cm/host/Export.h"
#include "cm/ui/logic/LiveUnits.h"
#include "cm/ui/logic/UnitTexts.h"

namespace veldra {

/// The positions of the units in the order of one column: bytes compared, capitals apart from small
/// letters, ascending. Units with the same text stay in their order; those that are gone come last.
VELDRA_CM_EXPORT std::vector<std::size_t> orderByColumn(const LiveUnits& units,
                                                        const UnitTexts& texts,
                                                        std::int32_t column);

}  // namespace veldra
