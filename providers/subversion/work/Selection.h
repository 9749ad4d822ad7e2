#pragma once

#include "providers/subversion/session/FileNames.h"
#include "providers/subversion/session/Project.h"
#include "providers/subversion/work/Outcome.h"

namespace veldra::subversion {

/// Those of the files that this working copy has checked out. The others are reported, as not
/// controlled or not checked out.
FileNames heldOnes(Project& project, const FileNames& files, Outcome& outcome);

/// Those that are on the disk; the others are reported.
FileNames presentOnes(Project& project, const FileNames& files, Outcome& outcome);

/// Those that the store does not have; the others are reported.
FileNames uncontrolledOnes(Project& project, const FileNames& files, Outcome& outcome);

/// Those that it has; the others are reported.
FileNames controlledOnes(Project& project, const FileNames& files, Outcome& outcome);

/// Gives the locks of files back and reports those that stay.
void giveBack(Project& project, const FileNames& files, Outcome& outcome);

/// Reports one file and its reason.
void refuse(Project& project, Outcome& outcome, const std::string& file, const char* reason,
            scc::SCCRTN result);

}  // namespace veldra::subversion
