#pragma once

#include "cm/host/Export.h"
#include "cm/ui/logic/CommandTable.h"

namespace veldra {

/// The advanced options that a provider may have for a command.
class VELDRA_CM_EXPORT ProviderOptions {
 public:
  /// Asks the provider; an error is told to the user.
  static bool IsAdvancedOptionsAvailable(DialogCommand command);
  /// Lets the provider show its window for them. False when that failed; the user has been told.
  static bool show(DialogCommand command);
};

/// Whether the provider has a context for the unit, or opens one now. The user has been told when
/// not.
VELDRA_CM_EXPORT bool opensProviderContext(IUnit& unit);

/// The same for the unit, or for the project without one, and makes that context the current one.
VELDRA_CM_EXPORT bool makesProviderContextCurrent(IUnit* unit);

/// Reads the CM states of the units from the provider. False when there is no context; the user has
/// been told.
VELDRA_CM_EXPORT bool refreshCMStatus(const UnitList& units);

/// Connects `unit` with a project of the provider's archive, or with a new one of the user's choice
/// when `isNew`. False when that failed; the user has been told.
VELDRA_CM_EXPORT bool associateUnit(IUnit* unit, bool isNew);
VELDRA_CM_EXPORT void disassociateUnit(IUnit* unit);

}  // namespace veldra
