#pragma once

#include "cm/host/Export.h"
#include "cm/host/IUnit.h"

namespace veldra {

/// What belongs to a unit beside its own file.
class VELDRA_CM_EXPORT ATMRecursiveHelper {
 public:
  /// The units with a file of their own in `unit`, itself first if it has one, in the model's
  /// order. Without `nested` only those are taken that no other such unit lies between. Each file
  /// counts once, whatever the model's shape.
  static UnitList getListOFFilesIn(IUnit* unit, bool nested);
  /// Whether those are more than one, found without listing them all.
  static bool hasSeveralFiles(IUnit* unit);
  static UnitList getListOFInformationUnits(IUnit* unit);
};

}  // namespace veldra
