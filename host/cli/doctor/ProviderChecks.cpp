#include <algorithm>

#include "host/cli/InstalledProviders.h"
#include "host/cli/ProviderConnection.h"
#include "host/cli/doctor/Checks.h"

namespace veldra::host::cli {

namespace {

DoctorCheck libraryCheck(const std::string& library) {
  try {
    return {.name = "library", .finding = library + ", of " + providerNameOf(library)};
  } catch (const CommandError& failure) {
    return failedCheck("library", failure.what(),
                       "Install the provider anew with \"veldra-cm provider install LIBRARY\", or "
                       "choose another one.");
  }
}

DoctorCheck connectionCheck(Session& session) {
  const std::string archive = connectedProject(session);
  if (archive.empty()) {
    return {.name = "archive",
            .isFine = false,
            .finding = "The project is not connected to an archive.",
            .advice = "Give \"veldra-cm connect\"."};
  }
  return checkListing(session, archive, "provider");
}

}  // namespace

DoctorChecks checkProvider(Session& session) {
  Registry registry;
  const std::vector<InstalledProvider> installed = installedProviders(registry);
  const auto provider = std::ranges::find(installed, true, &InstalledProvider::isDefault);
  if (provider == installed.end()) {
    return {{.name = "provider",
             .isFine = false,
             .finding = "No provider is installed.",
             .advice = "Give \"veldra-cm provider install [LIBRARY]\"."}};
  }
  DoctorChecks checks = {{.name = "provider", .finding = provider->name}};
  checks.push_back(libraryCheck(provider->library));
  if (checks.back().isFine) checks.push_back(connectionCheck(session));
  return checks;
}

}  // namespace veldra::host::cli
