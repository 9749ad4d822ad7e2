#pragma once

#include "providers/subversion/session/Project.h"

namespace veldra::subversion {

/// Makes good what a program left behind in the records of the working copy when it was ended in
/// the middle of its work. True when it is worth trying again. False, and nothing done, while
/// somebody is still at work there, or where that cannot be known.
bool mendRecords(Project& project);

}  // namespace veldra::subversion
