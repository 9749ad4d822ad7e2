#pragma once

#include <optional>
#include <string>
#include <vector>

#include "cm/host/IUnit.h"
#include "host/cli/ArchiveContent.h"
#include "host/cli/Session.h"
#include "host/cli/UnitRecord.h"

namespace veldra::host::cli {

/// Whom to ask where the units stand, beside their files. A source control provider is always
/// asked.
enum class StatesFrom {
  Files,
  Archive,  ///< The tool's listing, too.
};

/// The units with version, holder and state. Empty on success; otherwise why the archive could not
/// be asked, and the records hold what the files tell.
std::string describeStates(Session& session, const UnitList& units, StatesFrom source,
                           std::vector<UnitRecord>& records);

/// What a listing of the archive tells about units goes into their records.
void takeFromArchive(Session& session, const ArchiveContent& content,
                     std::vector<UnitRecord>& records);

/// The units as the workspace has them, in their order.
std::vector<UnitRecord> describeUnits(const UnitList& units);

}  // namespace veldra::host::cli
