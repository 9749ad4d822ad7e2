#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "host/model/Problem.h"
#include "host/model/Property.h"

namespace veldra::host {

/// The longest settings file that is read, in bytes.
inline constexpr std::size_t SettingsFileLimit = 4U << 20U;

/// The lines of a tool pack's own table.
struct PackDescription {
  std::string name;  ///< The tool's name, which is also the metaclass of its properties.
  std::string title;
  std::string description;
  std::string url;
  std::string file;  ///< Where the pack was read from.
};

/// One settings file as it was read.
///
///     [pack]                                # tool packs only
///     name = "Subversion"
///
///     [General]                             # settings of the host: scalars of a table
///     DEBUG_CM = "TRUE"
///
///     [ConfigurationManagement.Subversion]  # properties: subject and metaclass
///     CheckIn = 'svn commit ...'
///
/// Strings, booleans and whole numbers count, everything as text.
struct TomlSettings {
  struct Entry {
    PropertyKey key;
    std::string value;
    std::size_t line = 0;  ///< Where it stands in its file, from 1; 0 when that is not known.
  };
  std::vector<Entry> properties;
  std::map<std::pair<std::string, std::string>, std::string> settings;  ///< By section and name.
  std::optional<PackDescription> pack;
};

/// Reads a settings file. A file that does not exist is no problem and holds nothing. One that
/// cannot be read or is not valid is reported with its line and holds nothing; a value of a kind
/// that does not count is reported and left out.
TomlSettings readTomlSettings(const std::string& file, Problems& problems);

}  // namespace veldra::host
