#pragma once

#include "cm/core/CMArchiveItemList.h"
#include "cm/host/Export.h"
#include "cm/host/IUnit.h"

namespace veldra {

/// Information files are what code generation keeps about units. Whether they are offered to be
/// taken along, and preset.
class VELDRA_CM_EXPORT InformationFiles {
 public:
  /// Whether the setting and the code generation of the project let options about them be shown; a
  /// missing setting counts as yes.
  static bool areOffered();
  /// Whether one of the units, or of those that they own, was generated into source files, whatever
  /// the setting says.
  static bool areThere(const UnitList& units);
  /// Whether the unit, or one that it owns, was generated into source files. Here a missing setting
  /// counts as no.
  static bool shouldSetInformationFilesCheckBox(IUnit* unit);
  static bool shouldSetInformationFilesCheckBoxForUnitsList(const CMArchiveItemList& items);
  static bool shouldSetInformationFilesCheckBoxForUnitsList2(const UnitList& units);
  /// The information units of each unit, without those that are in the list already.
  static void append(UnitList& units);
};

}  // namespace veldra
