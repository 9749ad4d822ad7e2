#pragma once

namespace veldra {

/// Shows the host's CM output window with what the module has written so far.
void flushCommandOutput();

}  // namespace veldra
