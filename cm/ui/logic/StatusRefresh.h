#pragma once

#include "cm/host/Export.h"
#include "cm/host/IUnit.h"

namespace veldra {

/// The command that reads the CM states of all units from the provider.
class VELDRA_CM_EXPORT StatusRefresh {
 public:
  /// False when there is no context of the provider; the user has been told.
  static bool run(const UnitList& units);
};

}  // namespace veldra
