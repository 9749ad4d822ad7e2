#pragma once

#include <map>

#include "providers/subversion/session/FileNames.h"
#include "providers/subversion/session/Project.h"
#include "providers/subversion/work/Outcome.h"

namespace veldra::subversion {

/// Why a file could not be locked or unlocked.
struct Refusal {
  scc::SCCRTN result;
  bool isOutOfDate;
  std::string text;
};
using Refusals = std::map<std::string, Refusal>;

/// Locks files in one request and returns those that were refused. Throws when the request as a
/// whole failed; then nothing is locked.
Refusals lockFiles(Project& project, const FileNames& files, const char* comment);

/// Gives locks back in one request, the store's side included. A lock that the store does not know
/// any more is no failure.
Refusals unlockFiles(Project& project, const FileNames& files);

}  // namespace veldra::subversion
