#pragma once

#include "providers/subversion/session/FileNames.h"
#include "providers/subversion/session/Project.h"

namespace veldra::subversion {

/// Whether a file's bytes are other than those of the store's newest version, as that version would
/// lie on the disk.
[[nodiscard]] bool hasOtherBytes(Project& project, const std::string& file);

/// Sends the difference between the store's newest version and the file to the program, line by
/// line, and returns whether there is any. `flags` are those of `SccDiffFlag`.
bool showDifference(Project& project, const std::string& file, scc::LONG flags);

}  // namespace veldra::subversion
