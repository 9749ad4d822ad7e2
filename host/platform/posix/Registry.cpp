#include "host/platform/Registry.h"

#include <cstdlib>
#include <utility>

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

void add(RegistryValues& values, const std::string& file, const std::string& subkey) {
  Result<RegistryFile> content = RegistryFile::read(file);
  if (!content) return;
  const auto key = content->keys.find(subkey);
  if (key != content->keys.end()) values.merge(key->second);
}

}  // namespace

RegistryPlaces standardRegistryPlaces() {
  RegistryPlaces places{variable("VELDRA_MACHINE_REGISTRY"), variable("VELDRA_USER_REGISTRY")};
  if (places.machine.empty()) places.machine = "/etc/veldra-cm/registry.toml";
  if (places.user.empty()) places.user = userFile();
  return places;
}

Registry::Registry(RegistryPlaces places) : m_places(std::move(places)) {}

RegistryValues Registry::localMachineTexts(const std::string& subkey) const {
  RegistryValues values;
  if (!m_places.user.empty()) add(values, m_places.user, subkey);
  add(values, m_places.machine, subkey);
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
  for (const std::string& file : {m_places.user, m_places.machine}) {
    if (file.empty()) continue;
    if (const Result<RegistryFile> content = RegistryFile::read(file); !content)
      return content.error();
  }
  return std::nullopt;
}

}  // namespace veldra::host
