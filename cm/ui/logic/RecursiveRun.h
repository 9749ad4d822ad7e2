#pragma once

#include <string>
#include <vector>

#include "cm/core/CMArchiveItemList.h"
#include "cm/core/CMArgument.h"
#include "cm/core/CMDiagnostic.h"
#include "cm/host/IUnit.h"

namespace veldra {

/// Appends an archive item for the unit's file. The wrapper owns it.
void CmGetArcItemsFor(const IUnit& unit, CMArchiveItemListWrapper& items);

/// Checks the units' files out of the archive. False when the tool reported a failure.
bool checkOutItems(const UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics);

/// Loads the files of these units into the model anew. Files that are no units of the host's kinds
/// are left alone. The units may be other objects afterwards.
void reloadFiles(const UnitList& units);

/// A later recursive check-out has to save the model first.
void markSaveDue();

}  // namespace veldra
