#pragma once

#include <optional>
#include <string>
#include <vector>

#include "host/model/Property.h"

namespace veldra::host {

/// What a new project is made from.
struct NewProject {
  std::string directory;  ///< Exists or is made.
  std::string name;       ///< Empty: the directory's name.
  struct Setting {
    PropertyKey key;
    std::string value;
  };
  std::vector<Setting> properties;
  /// Files in the folder that are no units come under control too, so that the archive holds what
  /// the folder holds.
  bool controlOtherFiles = true;
};

/// Writes the project file into a folder, which may hold model files already; none of them is
/// touched. The absolute name of the project file, or nothing with the reason and the way out in
/// `error`.
std::optional<std::string> createProject(const NewProject& request, std::string& error);

}  // namespace veldra::host
