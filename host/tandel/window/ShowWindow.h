#pragma once

#include "host/tandel/Tandel.h"

namespace veldra::host::tandel {

/// What shows a comparison in a window; empty when there is no display. `argv` must live as long as
/// the program.
ShowWindow windowsOfThisMachine(int argc, char** argv);

}  // namespace veldra::host::tandel
