#pragma once

#include <string>
#include <vector>

#include "host/cli/Session.h"
#include "host/cli/UnitRecord.h"

namespace veldra::host::cli {

/// What the tool says that the archive holds.
struct ArchiveContent {
  std::vector<UnitRecord> files;
  std::string failure;                ///< Why it could not be listed, or not wholly; or empty.
  std::vector<std::string> commands;  ///< The commands that were run, or would be in a dry run.
};

ArchiveContent listArchive(Session& session);

}  // namespace veldra::host::cli
