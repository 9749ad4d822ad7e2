#pragma once

#include "cm/host/Export.h"
#include "cm/host/IUnit.h"

namespace veldra {

/// The units of the project that version control can know, in the order of the repository files:
/// no inactive ones, no workspace, and no package inside another unit's file.
UnitList workspaceUnits();

/// The units and every unit with a file that lies in them, each once.
VELDRA_CM_EXPORT UnitList withNestedFiles(const UnitList& units);

}  // namespace veldra
