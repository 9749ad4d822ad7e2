#pragma once

#include <string>

#include "cm/host/IRegistry.h"
#include "host/platform/RegistryFile.h"

namespace veldra::host {

/// The registry's two halves where the system has none.
struct RegistryPlaces {
  std::string machine;  ///< For every user of the machine.
  std::string user;     ///< For this one; empty when there is no place for it.
};

/// /etc/veldra-cm/registry.toml and veldra-cm/registry.toml below XDG_CONFIG_HOME or ~/.config. The
/// variables VELDRA_MACHINE_REGISTRY and VELDRA_USER_REGISTRY name other files.
RegistryPlaces standardRegistryPlaces();

/// The registry kept in files. A user's value wins over the machine's of the same key and name.
/// Files are read at each call, so that what another program installs is seen at once. One that
/// cannot be read counts as empty here; `problem` says so.
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
