#pragma once

#include <memory>
#include <string>
#include <vector>

#include "host/model/Project.h"
#include "host/model/PropertyLayers.h"

namespace veldra::host {

/// The names of the project files that lie in a directory, sorted.
std::vector<std::string> projectFilesIn(const std::string& directory);

/// The project file that a directory or file name means, as an absolute name. Empty, with the
/// reason and the way out in `error`, when there is none or more than one.
std::string findProjectFile(const std::string& directoryOrFile, std::string& error);

/// Opens a project; its units are loaded when they are needed. Null, with the reason and the way
/// out in `error`, only when the project file itself cannot be read; whatever else is wrong becomes
/// one of the project's problems.
std::unique_ptr<Project> loadProject(const std::string& projectFile, PropertyLayers& layers,
                                     std::string& error);

}  // namespace veldra::host
