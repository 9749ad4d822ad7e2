#pragma once

#include <string>

#include "cm/core/CMArchiveItemList.h"
#include "cm/core/CMArgument.h"
#include "cm/core/CMDiagnostic.h"
#include "cm/host/Export.h"
#include "cm/host/IUnit.h"

namespace veldra {

/// Checks items out one by one, as providers want it. False when one failed; the others are done
/// all the same.
VELDRA_CM_EXPORT bool doCheckOut(const CMArchiveItemList& items, ArgumentList& arguments,
                                 DiagnosticList& diagnostics);
/// The same for fetching; `label` may be empty.
VELDRA_CM_EXPORT bool doFetch(const CMArchiveItemList& items, const std::string& label,
                              DiagnosticList& diagnostics);

/// The items and, of `archive`, those of everything below the units that they stand for: nested
/// units, and files in the directory of a package that the model does not have yet.
VELDRA_CM_EXPORT CMArchiveItemList withDescendants(const CMArchiveItemList& items,
                                                   const CMArchiveItemList& archive);

/// The loaded units of the items.
VELDRA_CM_EXPORT UnitList loadedUnits(const CMArchiveItemList& items);

}  // namespace veldra
