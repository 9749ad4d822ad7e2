#pragma once

#include <string>
#include <vector>

#include "host/model/Property.h"
#include "host/platform/Registry.h"

namespace veldra::host::cli {

/// One provider of the registry.
struct InstalledProvider {
  std::string name;     ///< What the provider calls itself.
  std::string key;      ///< Its key below the local machine's root.
  std::string library;  ///< The full name of its library; empty when the registry has none.
  bool isDefault = false;
};

/// Every provider of the machine and of the user, by name.
std::vector<InstalledProvider> installedProviders(Registry& registry);

/// The name under which a library that is a provider presents itself. Loads it and asks it. Throws
/// `CommandError` when it cannot be loaded, or is none.
std::string providerNameOf(const std::string& library);

/// Writes a provider into a half of the registry. The default stays what it is, unless there is
/// none. Throws `CommandError` when it cannot be written.
void installProvider(const std::string& place, const std::string& name, const std::string& library);

/// Makes an installed provider the default of the user. Throws like the above.
void makeDefaultProvider(const std::string& place, const InstalledProvider& provider);

/// What a project says with "Yes" that works with the user's provider.
PropertyKey useOfProvider();

/// The library of the provider that comes with this program, whether it exists or not.
std::string shippedProvider(const std::string& installationRoot);

}  // namespace veldra::host::cli
