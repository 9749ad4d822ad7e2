#pragma once

#include "providers/subversion/session/Client.h"
#include "providers/subversion/session/FileNames.h"
#include "providers/subversion/status/FileState.h"

namespace veldra::subversion {

/// What the working copy knows of these files, without asking the store. What it does not know is
/// not in the answer. Many files of one directory cost one look at that directory.
FileStates localStates(Client& client, const FileNames& files);

}  // namespace veldra::subversion
