#pragma once

#include <string>

#include "cm/host/Export.h"
#include "cm/host/IUnit.h"

namespace veldra {

/// The archive of one unit, as a window shows and changes it.
class VELDRA_CM_EXPORT UnitArchive {
 public:
  /// Its own or inherited archive; what the setting of the archive selection names comes first.
  /// With a chosen archive list nothing is offered.
  static std::string offered(const IUnit& unit);
  /// Whether a file or a folder is what archives are.
  static bool isFile();

  /// Under a provider connects the unit, with a project of the user's choice when `isNew`;
  /// otherwise just records the path. False when that failed; the user has been told.
  static bool associate(IUnit& unit, const std::string& path, bool isNew);
  static void disassociate(IUnit& unit);
};

}  // namespace veldra
