#pragma once

#include <string>
#include <unordered_set>
#include <vector>

#include "cm/host/IUnit.h"
#include "host/cli/Options.h"
#include "host/cli/UnitRecord.h"
#include "host/model/Project.h"

namespace veldra::host::cli {

/// The units that a command works on.
struct UnitSelection {
  UnitList units;                   ///< Each once, in the order in which they were named.
  std::vector<UnitRecord> unknown;  ///< Names that are no unit, with the reason.
};

/// Ends the command unless the options either name units or mean all of them.
void checkUnitOptions(const Options& options);

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

/// The unit, the package or the project that a name means: a folder means its package. Null when
/// there is none or several.
UnitCore* unitNamed(Project& project, const std::string& name);

/// Puts what each package owns, and what is below that, behind it. Of a package and its content
/// only those stay that `which` means; they are returned. Other units stay as they are.
std::unordered_set<const IUnit*> addContent(AllUnits which, UnitList& units);

/// The units that the names mean: a file by its path, relative to the current folder or to the
/// project, or a unit by the names from the outermost package down to it, joined by "::".
/// `withPackages`: folders, and packages without a file of their own, may be meant, too.
UnitSelection selectByName(Project& project, const std::vector<std::string>& names,
                           bool withPackages = false);

/// The units of the workspace that "--all" means.
UnitSelection selectAll(AllUnits which);

/// Keeps the units that the rule wants, when `archived` are the paths that the archive holds. Units
/// that the module's listing never shows stay: it tells nothing about them.
void keepByArchive(ArchivedUnits rule, const std::unordered_set<std::string>& archived,
                   UnitList& units);

}  // namespace veldra::host::cli
