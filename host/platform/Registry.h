#pragma once

#include <string>

#include "cm/host/IRegistry.h"
#include "host/platform/RegistryFile.h"

namespace veldra::host {

/// The registry's two halves. On Windows each is a root of the system's registry, by its name;
/// elsewhere, and wherever a variable says so, a file.
struct RegistryPlaces {
  std::string machine;  ///< For every user of the machine.
  std::string user;     ///< For this one; empty when there is no place for it.
};

/// HKEY_LOCAL_MACHINE and HKEY_CURRENT_USER, the same keys in both, and in the views of 64-bit and
/// of 32-bit programs; where there is no registry, /etc/veldra-cm/registry.toml and
/// veldra-cm/registry.toml below XDG_CONFIG_HOME or ~/.config.
RegistryPlaces systemRegistryPlaces();

/// Those of the system, or the files that the variables VELDRA_MACHINE_REGISTRY and
/// VELDRA_USER_REGISTRY name.
RegistryPlaces standardRegistryPlaces();

/// A user's value wins over the machine's of the same key and name. Everything is read at each
/// call, so that what another program installs is seen at once. A file that cannot be read counts
/// as empty here; `problem` says so.
class Registry : public IRegistry {
 public:
  explicit Registry(RegistryPlaces places = standardRegistryPlaces());

  std::optional<std::string> localMachineText(const std::string& subkey,
                                              const std::string& name) override;

  /// All text values of a key.
  [[nodiscard]] RegistryValues localMachineTexts(const std::string& subkey) const;

  /// What is wrong with a file, or nothing.
  [[nodiscard]] std::optional<std::string> problem() const;

  const RegistryPlaces& places() const { return m_places; }

 private:
  RegistryPlaces m_places;
};

}  // namespace veldra::host
