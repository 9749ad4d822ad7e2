#pragma once

#include "cm/host/IUnit.h"

namespace veldra {

/// The units of the project that version control can know, in the order of the repository files:
/// no inactive ones, no workspace, and no package inside another unit's file.
UnitList workspaceUnits();

}  // namespace veldra
