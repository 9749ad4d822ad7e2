#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "cm/core/CMDiagnostic.h"
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
/// The same for files that need not be kept: each is given to `take` instead.
ArchiveContent listArchive(Session& session, const std::function<void(UnitRecord&)>& take);

/// Why a listing of the archive came to nothing, or may lack something; empty when nothing speaks
/// against it. `tracesBefore` is how many traces the session's progress had before.
std::string whyNotListed(Session& session, std::size_t tracesBefore,
                         const DiagnosticList& diagnostics);

}  // namespace veldra::host::cli
