#pragma once

#include <string>

#include "cm/host/Export.h"

namespace veldra {

class IUnit;

/// Reads what a CM tool's keyword expansion wrote into a unit's CM header, and supplies the header
/// of new units.
class VELDRA_CM_EXPORT CMTraitFacade {
 public:
  /// The text of the file that the tool property "CMHeaderFile" names, up to a byte 0xFF; empty
  /// when there is none.
  static std::string getDefaultHeader();
  /// The version in the unit's CM header; empty when the header has none.
  static std::string getVersion(const IUnit* unit);
  /// Who holds the unit, as its CM header says.
  static std::string getLocker(const IUnit* unit);
  static std::string getOwner(const IUnit* unit) { return getLocker(unit); }
};

}  // namespace veldra
