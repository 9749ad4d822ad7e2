#pragma once

#include <memory>
#include <string>

#include "cm/host/Reload.h"

namespace veldra {

class CMArchiveItem;

/// Loads a file into the model anew and lets the workspace remember the unit. Null on failure.
/// `facade` may be null: then the host has no such service.
IUnit* addToModel(ATMFacade* facade, const std::string& fileName);

/// Reloads the unit in place when the host allows that. `canReload` tells which way was taken.
IUnit* reloadInPlace(IUnit& unit, bool& canReload);

/// Loads the unit's file anew for the unit's owner.
IUnit* addAgain(IUnit& unit);

/// The trace-accompanied refresh of a unit's CM header and mode.
void updateHeaderAndMode(IUnit& unit);

/// Loads an archive item's file: reloads the unit that is loaded from its directory under that
/// name, or adds the file to the model. Null when that yields no unit.
IUnit* loadItem(const CMArchiveItem& item, const std::string& name);

/// Lets a file that followed its unit's name follow the name that a reload brought. Nothing happens
/// unless the recorded name `nameBefore` equals `nameNow`, the name that the file had, or was to
/// have, before the reload.
void renameToComputedName(IUnit* unit, const std::string& nameBefore, const std::string& nameNow);

}  // namespace veldra
