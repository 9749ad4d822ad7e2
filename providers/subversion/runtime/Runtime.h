#pragma once

namespace veldra::subversion {

/// Prepares APR and libsvn, once per process and from whichever thread comes first. False when the
/// libraries at hand cannot be used. Nothing undoes it: other code of the process may use them too.
[[nodiscard]] bool prepareRuntime();

}  // namespace veldra::subversion
