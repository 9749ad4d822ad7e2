#pragma once

#include <string>
#include <unordered_set>
#include <vector>

#include "cm/host/IUnit.h"
#include "host/cli/UnitRecord.h"
#include "host/model/Project.h"

namespace veldra::host::cli {

/// The units that a command works on.
struct UnitSelection {
  UnitList units;                   ///< Each once, in the order in which they were named.
  std::vector<UnitRecord> unknown;  ///< Names that are no unit, with the reason.
};

/// Which units "--all" means.
enum class AllUnits {
  Every,
  ReadOnly,  ///< Those that are not checked out.
  Writable,  ///< Those that are.
};

/// What the archive's listing decides about the units of "--all".
enum class ArchivedUnits {
  Only,     ///< The command is for units that the archive holds.
  LeaveOut  ///< It is for the others.
};

/// The units that the names mean: a file by its path, relative to the current folder or to the
/// project, or a unit by the names from the outermost package down to it, joined by "::".
UnitSelection selectByName(Project& project, const std::vector<std::string>& names);

/// The units of the workspace that "--all" means.
UnitSelection selectAll(AllUnits which);

/// Keeps the units that the rule wants, when `archived` are the paths that the archive holds. Units
/// that the module's listing never shows stay: it tells nothing about them.
void keepByArchive(ArchivedUnits rule, const std::unordered_set<std::string>& archived,
                   UnitList& units);

}  // namespace veldra::host::cli
