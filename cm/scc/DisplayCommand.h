#pragma once

#include <string>
#include <vector>

#include "cm/core/CMDiagnostic.h"
#include "cm/host/IUnit.h"
#include "cm/scc/ProviderBatch.h"

namespace veldra {

/// A command that shows something in the provider's own window. The user may fetch an old version
/// from there; then the provider says so and the units are loaded again, in place in the list.
/// True when the code was no failure; otherwise the user has been told.
bool concludeDisplay(long code, UnitList& units);

}  // namespace veldra
