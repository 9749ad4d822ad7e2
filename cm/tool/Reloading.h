#pragma once

#include <string>

#include "cm/core/UnitReload.h"
#include "cm/tool/UnitCommand.h"

namespace veldra {

/// Puts what a reload of `file` yielded in the unit's place, for the list and the validator. False,
/// with the failure reported to the user, when it yielded nothing.
bool acceptReloaded(UnitRun& run, IUnit* reloaded, const std::string& file);

}  // namespace veldra
