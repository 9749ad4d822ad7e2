#pragma once

#include <cstddef>

#include "cm/ui/logic/CommandTable.h"

namespace veldra {

/// Whether that many selected rows satisfy the rule; otherwise the user has been warned.
VELDRA_CM_EXPORT bool allowsSelection(SelectionRule rule, std::size_t selected);

/// Whether a project is open, which every command needs; otherwise the user has been told.
VELDRA_CM_EXPORT bool allowsCommands();

/// True when at least one of the units holds other units with files of their own.
VELDRA_CM_EXPORT bool CheckForDescendentsInSelectedItems(const UnitList& units);

}  // namespace veldra
