#pragma once

#include "providers/subversion/session/Project.h"
#include "providers/subversion/status/FileState.h"

namespace veldra::subversion {

/// Adds to states of the working copy what the store knows: who holds each file, and whether there
/// is something newer. Two or three requests, however many the files are.
///
/// False when the working copy is so far behind that looking at each revision since would take
/// longer than letting libsvn compare everything; the states are then as they were.
[[nodiscard]] bool askStore(Client& client, FileStates& states);

/// Who holds the files below the project's folder, by their names in the working copy. One request.
std::unordered_map<std::string, Holder> holdersBelow(Project& project);

}  // namespace veldra::subversion
