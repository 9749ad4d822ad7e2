#pragma once

#include "cm/core/CMUnitValidator.h"
#include "cm/host/IUnit.h"

namespace veldra {

/// A command that shows units in the provider's own window. The user may fetch an old version from
/// there; then the provider says so and the units are loaded again, in place in the caller's list.
class DisplayCommand {
 public:
  explicit DisplayCommand(UnitList& units) : m_units(units) { m_validator.init(units); }

  /// True when the code was no failure; otherwise the user has been told. `shown` are the units
  /// that the window was about.
  bool conclude(long code, const UnitList& shown);

 private:
  void reload(const UnitList& shown);

  UnitList& m_units;
  CMUnitValidator m_validator;
};

}  // namespace veldra
