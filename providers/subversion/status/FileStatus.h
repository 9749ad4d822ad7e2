#pragma once

#include "providers/subversion/session/FileNames.h"
#include "providers/subversion/session/Project.h"
#include "providers/subversion/status/FileState.h"

namespace veldra::subversion {

/// What the working copy and the store know of these files. Files that neither knows are not in the
/// answer, and those that only the store has are only there when the store was compared as a whole.
FileStates fileStates(Project& project, const FileNames& files);

/// The same for everything below a directory, with what only the store has.
FileStates treeStates(Project& project, const std::string& directory, svn_depth_t depth);

/// The state of one file; an unknown one is not controlled.
const FileState& stateIn(const FileStates& states, const std::string& file);

/// "'name' is checked out by bob since 2026-11-21 07:30: his comment"
std::string holderText(const std::string& file, const Holder& holder);

}  // namespace veldra::subversion
