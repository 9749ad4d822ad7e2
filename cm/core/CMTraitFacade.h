#pragma once

#include <memory>
#include <string>

#include "cm/host/Export.h"

namespace veldra {

class IUnit;

/// Reads version and locker of any number of units; the patterns are looked up once, when it is
/// made.
class VELDRA_CM_EXPORT CMHeaderReader {
 public:
  CMHeaderReader();
  CMHeaderReader(const CMHeaderReader&) = delete;
  CMHeaderReader& operator=(const CMHeaderReader&) = delete;
  ~CMHeaderReader();

  /// As the functions of `CMTraitFacade`.
  std::string getVersion(const IUnit* unit) const;
  std::string getLocker(const IUnit* unit) const;

 private:
  struct Patterns;
  std::unique_ptr<Patterns> m_patterns;
};

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
