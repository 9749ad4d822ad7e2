#pragma once

namespace veldra {

/// Looks the provider library up in the registry and remembers its path. When it is not found, the
/// user is told and operations go on without a library.
void locateProvider();

/// Loads the library that was found, unless one has been loaded: once per process. The user is told
/// when that fails.
void loadProviderOnce();

}  // namespace veldra
