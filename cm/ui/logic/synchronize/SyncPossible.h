#pragma once

#include "cm/host/Export.h"

namespace veldra {

/// Whether the model can be synchronized with the archive at all. Where files are compared by their
/// times, the setting "UseUnitTimeStamps" must be on; the user is told when it is not. `flag` is
/// kept for callers and has no meaning.
VELDRA_CM_EXPORT bool canSynchronize(int flag);

}  // namespace veldra
