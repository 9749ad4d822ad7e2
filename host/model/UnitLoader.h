#pragma once

#include <string>

#include "host/model/Project.h"

namespace veldra::host {

/// Fills a project with the units that its folder, its lists and its references name. What is wrong
/// becomes a problem of the project.
void loadUnits(Project& project);

/// A record for a file, filled from its head.
UnitRecord recordOf(Folder& folder, std::string fileName, const FileType* type, UnitHead& head);

}  // namespace veldra::host
