#include "host/cli/InstalledProviders.h"

#include <algorithm>
#include <array>
#include <filesystem>

#include "cm/host/IPN.h"
#include "cm/scc/SccInterface.h"
#include "host/cli/ExitCode.h"
#include "host/platform/FaultGuard.h"
#include "host/platform/Libraries.h"
#include "host/platform/RegistryPlace.h"

namespace veldra::host::cli {

using namespace scc;

namespace {

// The places that the interface's documentation gives.
constexpr char ProvidersKey[] = "Software\\SourceCodeControlProvider";
constexpr char InstalledKey[] = "Software\\SourceCodeControlProvider\\InstalledSCCProviders";
constexpr char DefaultName[] = "ProviderRegKey";
constexpr char NameName[] = "SCCServerName";
constexpr char PathName[] = "SCCServerPath";

/// What every provider has, because no capability stands for it.
constexpr const char* Mandatory[] = {"SccGetVersion",  "SccInitialize",   "SccUninitialize",
                                     "SccOpenProject", "SccCloseProject", "SccSetOption",
                                     "SccGet",         "SccCheckout",     "SccUncheckout",
                                     "SccCheckin",     "SccAdd"};

/// A key of our own for a provider. Percent signs and backslashes mean something in keys.
std::string keyFor(const std::string& name) {
  std::string key = name;
  std::ranges::replace_if(
      key, [](char c) { return c == '\\' || c == '%' || c < ' '; }, '_');
  return "Software\\Veldra\\" + key;
}

void store(const std::string& place, const std::vector<RegistryEntry>& entries) {
  if (place.empty()) {
    throw CommandError(ExitCode::NothingDone,
                       "There is no place for a registry of your own: set HOME, XDG_CONFIG_HOME or "
                       "VELDRA_USER_REGISTRY.");
  }
  if (const std::optional<std::string> failure = storeInRegistry(place, entries))
    throw CommandError(ExitCode::NothingDone, *failure);
}

}  // namespace

std::vector<InstalledProvider> installedProviders(Registry& registry) {
  const std::string standard = registry.localMachineText(ProvidersKey, DefaultName).value_or("");
  std::vector<InstalledProvider> providers;
  for (const auto& [name, key] : registry.localMachineTexts(InstalledKey)) {
    providers.push_back({name, key, registry.localMachineText(key, PathName).value_or(""),
                         !RegistryOrder()(key, standard) && !RegistryOrder()(standard, key)});
  }
  return providers;
}

namespace {

/// Answers what the provider calls itself, or nothing; `result` is what it returned. Buffers have
/// more room than the interface gives them, for providers that fill them beyond their end.
std::string askForName(const ILibrary& provider, SCCRTN& result) {
  const auto initialize = reinterpret_cast<SccInitializeFn*>(provider.find("SccInitialize"));
  const auto uninitialize = reinterpret_cast<SccUninitializeFn*>(provider.find("SccUninitialize"));
  LPVOID context = nullptr;
  std::array<char, 512> name{};
  std::array<char, 512> label{};
  LONG number = 0;
  result =
      initialize(&context, nullptr, "Veldra", name.data(), &number, label.data(), &number, &number);
  if (result == SCC_OK) uninitialize(context);
  name[SCC_NAME_SIZE - 1] = '\0';
  return name.data();
}

}  // namespace

std::string providerNameOf(const std::string& library) {
  std::string error;
  const std::unique_ptr<ILibrary> loaded = Libraries().load(library, error);
  if (!loaded) throw CommandError(ExitCode::NothingDone, error);
  for (const char* name : Mandatory) {
    if (loaded->find(name)) continue;
    throw CommandError(
        ExitCode::NothingDone,
        "The library " + library + " is no provider: it has no entry point " + name + ".");
  }
  SCCRTN result = SCC_OK;
  std::string name;
  try {
    FaultGuard().guard([&] { name = askForName(*loaded, result); });
  } catch (const std::exception& failure) {
    throw CommandError(ExitCode::NothingDone, "The provider " + library +
                                                  " fails when it is initialised: " +
                                                  failure.what() + " Install another one.");
  }
  if (result != SCC_OK) {
    throw CommandError(ExitCode::NothingDone, "The provider " + library +
                                                  " cannot be initialised; it returned " +
                                                  std::to_string(result) + ".");
  }
  return !name.empty() ? name : std::filesystem::path(library).stem().string();
}

void installProvider(const std::string& place, const std::string& name,
                     const std::string& library) {
  const std::string key = keyFor(name);
  store(place, {{key, NameName, name},
                {key, PathName, library},
                {InstalledKey, name, key},
                {ProvidersKey, DefaultName, key, true}});
}

void makeDefaultProvider(const std::string& place, const InstalledProvider& provider) {
  store(place, {{ProvidersKey, DefaultName, provider.key}});
}

PropertyKey useOfProvider() {
  return {IPN::CM, IPN::General, "UseSCCtool"};
}

std::string shippedProvider(const std::string& installationRoot) {
  const std::filesystem::path prefix =
      std::filesystem::path(installationRoot).parent_path().parent_path();
#if defined(_WIN32)
  return (prefix / "lib" / "veldra-cm" / "veldra-subversion.dll").string();
#else
  return (prefix / "lib" / "veldra-cm" / "libveldra-subversion.so").string();
#endif
}

}  // namespace veldra::host::cli
