#pragma once

#include "cm/host/Export.h"
#include "cm/host/IUnit.h"

namespace veldra {

/// The archive of the first unit, or of the project, becomes the main one; a list that the user has
/// chosen stays.
VELDRA_CM_EXPORT void chooseMainArchive(const UnitList& units);

}  // namespace veldra
