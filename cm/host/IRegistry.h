#pragma once

#include <optional>
#include <string>

namespace veldra {

/// The machine's registry, or what stands in for it where there is none: keys in a tree, and below
/// each key named values. The module only reads, and only below the local machine's root
/// (HKEY_LOCAL_MACHINE).
class IRegistry {
 public:
  virtual ~IRegistry() = default;

  /// The text value `name` of the key `subkey`, for example
  /// ("Software\\SourceCodeControlProvider", "ProviderRegKey"). Parts of a key are separated by
  /// backslashes; keys and names are compared without regard to the case of ASCII letters.
  ///
  /// Nothing when the key or the value does not exist, may not be read, or is no text. The text
  /// comes without the zero bytes that registries keep at its end. Both arguments may hold any
  /// bytes: a host that keeps keys in files must not let one name a file outside of its own.
  virtual std::optional<std::string> localMachineText(const std::string& subkey,
                                                      const std::string& name) = 0;
};

}  // namespace veldra
