#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>

#include "cm/host/Export.h"

namespace veldra {

/// How long the rest takes at the pace so far, in seconds, rounded up; nothing before there is a
/// pace to go by, of one unit and one second. `position` is the unit that is worked on, from 1.
VELDRA_CM_EXPORT std::optional<std::int64_t> secondsLeft(std::size_t position, std::size_t count,
                                                         std::int64_t elapsedMilliseconds);

}  // namespace veldra
