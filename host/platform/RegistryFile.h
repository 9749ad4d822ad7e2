#pragma once

#include <map>
#include <string>

#include "host/platform/Result.h"

namespace veldra::host {

/// Orders names without regard to the case of ASCII letters, as registries do.
struct RegistryOrder {
  bool operator()(const std::string& left, const std::string& right) const;
};

/// The text values of one key, by name.
using RegistryValues = std::map<std::string, std::string, RegistryOrder>;

/// What stands in for the registry where the system has none: a text file with a table per key,
/// the key's parts separated by backslashes as in the registry itself.
///
///     ['Software\SourceCodeControlProvider']
///     ProviderRegKey = 'Software\Veldra\Subversion'
///
/// Texts are values, and so are whole numbers, as texts. A file that does not exist is empty.
struct RegistryFile {
  std::map<std::string, RegistryValues, RegistryOrder> keys;

  /// The file's content, or a sentence that names the file, the line and what is wrong.
  static Result<RegistryFile> read(const std::string& path);
  /// Replaces the file as a whole and makes its directory. Nothing on success, else why not.
  [[nodiscard]] std::optional<std::string> write(const std::string& path) const;
};

}  // namespace veldra::host
