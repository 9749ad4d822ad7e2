#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "host/platform/RegistryFile.h"

namespace veldra::host {

/// A value for the registry.
struct RegistryEntry {
  std::string key;
  std::string name;
  std::string value;
  bool keepsPresent = false;  ///< A value that is there already stays.
};

/// The text values of a key in one half of the registry: a file, or on Windows a root of the
/// system's own. None when they cannot be read.
[[nodiscard]] RegistryValues registryValues(const std::string& place, const std::string& subkey);

/// Writes all entries or, into a file, none. Nothing on success, else a sentence that says why not.
[[nodiscard]] std::optional<std::string> storeInRegistry(const std::string& place,
                                                         const std::vector<RegistryEntry>& entries);

/// The system's own registry; every function answers nothing where there is none.
struct SystemRegistry {
  /// The name of the root that stands for this place; none when the place is a file.
  static bool isPlace(std::string_view place);
  static RegistryValues values(const std::string& place, const std::string& subkey);
  static std::optional<std::string> store(const std::string& place,
                                          const std::vector<RegistryEntry>& entries);
};

}  // namespace veldra::host
