#pragma once

#include <string>

#include "cm/host/Export.h"
#include "cm/host/IUnit.h"

namespace veldra {

/// When the command-line tool stands in for a selected provider.
namespace HybridRule {

/// The settings allow it and the provider is the one that needs it.
bool isPossible();
/// As `isPossible`, and the list has a package with a directory of its own.
bool appliesToPackages(const UnitList& units);
/// As `isPossible`, and the two names lie in different directories.
bool appliesToRename(const std::string& oldName, const std::string& newName);

}  // namespace HybridRule

/// Whether the unit is a package whose host record names a directory.
bool isPackageWithDirectory(IUnit* unit);

/// The unit's file in full; for a package that is a directory without a file that directory, with a
/// separator at its end. Empty for a unit without any place.
VELDRA_CM_EXPORT std::string placeOf(const IUnit& unit);

/// Whether the provider's tool name is `name`, without regard to case.
bool isProviderNamed(const char* name);

}  // namespace veldra
