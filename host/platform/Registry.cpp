#include "host/platform/Registry.h"

#include <cstdlib>
#include <utility>

#include "host/platform/RegistryPlace.h"

namespace veldra::host {
namespace {

void takeFromVariable(std::string& place, const char* name) {
  const char* const value = std::getenv(name);
  if (value != nullptr && *value != '\0') place = value;
}

}  // namespace

RegistryPlaces standardRegistryPlaces() {
  RegistryPlaces places = systemRegistryPlaces();
  takeFromVariable(places.machine, "VELDRA_MACHINE_REGISTRY");
  takeFromVariable(places.user, "VELDRA_USER_REGISTRY");
  return places;
}

Registry::Registry(RegistryPlaces places) : m_places(std::move(places)) {}

RegistryValues Registry::localMachineTexts(const std::string& subkey) const {
  RegistryValues values;
  for (const std::string& place : {m_places.user, m_places.machine}) {
    if (!place.empty()) values.merge(registryValues(place, subkey));
  }
  return values;
}

std::optional<std::string> Registry::localMachineText(const std::string& subkey,
                                                      const std::string& name) {
  const RegistryValues values = localMachineTexts(subkey);
  const auto value = values.find(name);
  if (value == values.end()) return std::nullopt;
  return value->second;
}

std::optional<std::string> Registry::problem() const {
  for (const std::string& place : {m_places.user, m_places.machine}) {
    if (place.empty() || SystemRegistry::isPlace(place)) continue;
    if (const Result<RegistryFile> content = RegistryFile::read(place); !content)
      return content.error();
  }
  return std::nullopt;
}

}  // namespace veldra::host
