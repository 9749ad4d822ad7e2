#pragma once

#include <string>

#include "host/model/Project.h"

namespace veldra::host::desktop {

/// The folder for a new unit beside or below another one: that of the package, or the folder that
/// the unit lies in. Without a unit the project's own.
Folder& folderFor(Project& project, const UnitCore* unit);

/// Writes a file for a new unit of type "Component", "Diagram" or "Package" and takes it into the
/// model. A package gets a folder of its own. Null, with the reason and the way out in `error`,
/// when that fails.
UnitCore* createUnit(Project& project, const Folder& folder, const std::string& unitType,
                     const std::string& name, std::string& error);

}  // namespace veldra::host::desktop
