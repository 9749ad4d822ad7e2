#pragma once

#include <string>

#include "cm/host/IUnit.h"
#include "cm/tool/UnitCommand.h"

namespace veldra {

/// Loads a file into the model anew and lets the workspace remember the unit. Null on failure.
/// `facade` may be null: then the host has no such service.
IUnit* addToModel(ATMFacade* facade, const std::string& fileName);

/// Reloads the unit in place when the host allows that. `canReload` tells which way was taken.
IUnit* reloadInPlace(IUnit& unit, bool& canReload);

/// Loads the unit's file anew for the unit's owner.
IUnit* addAgain(IUnit& unit);

/// Puts what a reload of `file` yielded in the unit's place, for the list and the validator. False,
/// with the failure reported to the user, when it yielded nothing.
bool acceptReloaded(UnitRun& run, IUnit* reloaded, const std::string& file);

}  // namespace veldra
