#include "host/platform/RegistryPlace.h"

namespace veldra::host {

namespace {

std::optional<std::string> storeInFile(const std::string& place,
                                       const std::vector<RegistryEntry>& entries) {
  Result<RegistryFile> content = RegistryFile::read(place);
  if (!content) return content.error();
  for (const RegistryEntry& entry : entries) {
    RegistryValues& values = content->keys[entry.key];
    if (!entry.keepsPresent) values.erase(entry.name);
    values.try_emplace(entry.name, entry.value);
  }
  return content->write(place);
}

}  // namespace

RegistryValues registryValues(const std::string& place, const std::string& subkey) {
  if (SystemRegistry::isPlace(place)) return SystemRegistry::values(place, subkey);
  Result<RegistryFile> content = RegistryFile::read(place);
  if (!content) return {};
  const auto key = content->keys.find(subkey);
  return key == content->keys.end() ? RegistryValues() : key->second;
}

std::optional<std::string> storeInRegistry(const std::string& place,
                                           const std::vector<RegistryEntry>& entries) {
  return SystemRegistry::isPlace(place) ? SystemRegistry::store(place, entries)
                                        : storeInFile(place, entries);
}

}  // namespace veldra::host
