#include <algorithm>

#include "host/cli/InstalledProviders.h"
#include "host/cli/Session.h"
#include "host/cli/printing/BytesAsText.h"
#include "host/cli/printing/Report.h"
#include "host/model/PathNames.h"

namespace veldra::host::cli {

namespace {

using Json = nlohmann::ordered_json;

void print(const Invocation& invocation, const std::vector<InstalledProvider>& providers) {
  std::ostream& out = invocation.console.out;
  if (!invocation.options.json) {
    for (const InstalledProvider& provider : providers) {
      out << (provider.isDefault ? "* " : "  ") << textForPeople(provider.name) << "  "
          << textForPeople(provider.library) << '\n';
    }
    return;
  }
  Json document;
  document["command"] = invocation.command.name;
  document["providers"] = Json::array();
  for (const InstalledProvider& provider : providers) {
    Json json;
    json["name"] = jsonText(provider.name);
    json["library"] = jsonText(provider.library);
    json["default"] = provider.isDefault;
    document["providers"].push_back(std::move(json));
  }
  printJson(document, out);
}

InstalledProvider providerNamed(Registry& registry, const std::string& name) {
  const std::vector<InstalledProvider> providers = installedProviders(registry);
  const auto found = std::ranges::find_if(providers, [&](const InstalledProvider& provider) {
    return lowerCase(provider.name) == lowerCase(name);
  });
  if (found != providers.end()) return *found;
  throw CommandError(ExitCode::NothingDone,
                     "No provider \"" + name +
                         "\" is installed. \"veldra-cm provider list\" shows those that are.");
}

void install(const Invocation& invocation, Session& session, Registry& registry) {
  const Options& options = invocation.options;
  const std::string library =
      options.key ? absolutePath(*options.key) : shippedProvider(session.host().installationRoot());
  const std::string name = providerNameOf(library);
  const RegistryPlaces& places = registry.places();
  if (!options.dryRun)
    installProvider(options.forMachine ? places.machine : places.user, name, library);
  if (!options.json) invocation.console.out << "installed  " << textForPeople(name) << '\n';
}

/// The default of the user, and what the project at hand works with.
void use(const Invocation& invocation, Session& session, Registry& registry) {
  const InstalledProvider provider = providerNamed(registry, *invocation.options.key);
  const bool hasProject = session.openProjectIfAny();
  if (!invocation.options.dryRun) {
    makeDefaultProvider(registry.places().user, provider);
    if (hasProject) {
      session.host().properties().setInProject(useOfProvider(), "Yes");
      session.project().startShowingCMStatus();
      session.save(true);
    }
  }
  if (invocation.options.json) return;
  invocation.console.out << "default    " << textForPeople(provider.name) << '\n';
  if (hasProject)
    invocation.console.out << "project    " << textForPeople(session.project().getFullFileName())
                           << '\n';
}

}  // namespace

ExitCode runProvider(const Invocation& invocation) {
  const Options& options = invocation.options;
  Session session(invocation);
  Registry registry;
  if (const std::optional<std::string> problem = registry.problem())
    invocation.console.err << linesForPeople(*problem) << '\n';
  if (options.action == "install") {
    install(invocation, session, registry);
  } else if (options.action == "use" && options.key) {
    use(invocation, session, registry);
  } else if (options.action != "list" || options.key) {
    throw CommandError(ExitCode::WrongUsage,
                       "It is \"provider list\", \"provider install [LIBRARY]\" or \"provider use "
                       "NAME\".");
  }
  if (options.action == "list" || options.json) print(invocation, installedProviders(registry));
  return ExitCode::AllDone;
}

}  // namespace veldra::host::cli
