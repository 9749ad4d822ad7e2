#pragma once

#include <string>

#include "providers/subversion/session/Project.h"

namespace veldra::subversion {

/// The URL that a folder was checked out from; empty when it is under no version control.
std::string urlOfFolder(Client& client, const std::string& path);

/// Makes the project's local folder a working copy of its URL, unless it is one. Files that lie
/// there stay as they are. A working copy of another folder of the same repository is taken as it
/// is, with a warning; one of another repository is refused.
void attachFolder(Project& project);

}  // namespace veldra::subversion
