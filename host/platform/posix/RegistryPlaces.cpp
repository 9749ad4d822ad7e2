#include <cstdlib>

#include "host/platform/Registry.h"
#include "host/platform/RegistryPlace.h"

namespace veldra::host {

namespace {

std::string variable(const char* name) {
  const char* value = std::getenv(name);
  return value ? value : "";
}

std::string userFile() {
  std::string directory = variable("XDG_CONFIG_HOME");
  const std::string home = variable("HOME");
  if (directory.empty() && !home.empty()) directory = home + "/.config";
  return directory.empty() ? directory : directory + "/veldra-cm/registry.toml";
}

}  // namespace

RegistryPlaces systemRegistryPlaces() {
  return {"/etc/veldra-cm/registry.toml", userFile()};
}

bool SystemRegistry::isPlace(std::string_view) {
  return false;
}

RegistryValues SystemRegistry::values(const std::string&, const std::string&) {
  return {};
}

std::optional<std::string> SystemRegistry::store(const std::string&,
                                                 const std::vector<RegistryEntry>&) {
  return std::nullopt;
}

}  // namespace veldra::host
