#pragma once

#include <string>

#include "host/model/Project.h"

namespace veldra::host {

/// Fills a project with the units that its folder, its lists and its references name. What is wrong
/// becomes a problem of the project. `headCache` is the file that remembers heads; empty for none.
void loadUnits(Project& project, const std::string& headCache);

/// A record for a file, filled from its head, whose texts move into it.
UnitRecord recordOf(Folder& folder, std::string fileName, const FileType* type, UnitHead& head);

}  // namespace veldra::host
