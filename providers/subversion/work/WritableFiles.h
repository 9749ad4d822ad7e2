#pragma once

#include "providers/subversion/session/FileNames.h"
#include "providers/subversion/session/Project.h"

namespace veldra::subversion {

/// Those of the files that can be written although the store wants them checked out for that. None
/// of them may be checked out here.
FileNames wronglyWritable(Project& project, const FileNames& files);

}  // namespace veldra::subversion
