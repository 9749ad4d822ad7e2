#pragma once

namespace veldra::host::desktop {

/// Lets all windows speak the user's language; English where there is no translation. To be called
/// once, when there is an application.
void installWords();

}  // namespace veldra::host::desktop
