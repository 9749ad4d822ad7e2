#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "cm/core/CMStatus.h"
#include "cm/host/Export.h"
#include "cm/host/IBaseCMFacade.h"
#include "cm/host/IUnit.h"

namespace veldra {

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

/// What the provider knows of a unit's file.
struct UnitStatus {
  std::int32_t state = CMState::Invalid;
  std::string holder;  ///< Who has it out; empty when nobody does or the provider does not tell.
};

/// Reads what a CM tool's keyword expansion wrote into a unit's CM header, supplies the header of
/// new units, and refreshes CM states.
class VELDRA_CM_EXPORT CMTraitFacade : public IBaseCMFacade {
 public:
  /// The one through which a host reaches the services of its interface.
  static CMTraitFacade& instance();

  std::string getTheDefaultHeader() override { return getDefaultHeader(); }
  /// Only under the provider back end, in a project that shows CM status, and as the setting
  /// "RefreshCMStatusAtProjectOpenup" says: "Yes", "Ask User", or not.
  void RefreshCMStatus() override;
  /// Asks the provider about units, whatever the project shows; their own states stay as they are.
  /// One answer per unit, in their order. 1 on success; 0, and no answers, when there is no
  /// provider or it cannot be asked: the user has then been told.
  static int queryStatus(const UnitList& units, std::vector<UnitStatus>& status);

  /// The text of the file that the tool property "CMHeaderFile" names, up to a byte 0xFF; empty
  /// when there is none or it cannot be read.
  static std::string getDefaultHeader();
  /// The version in the unit's CM header; empty when the header has none.
  static std::string getVersion(const IUnit* unit);
  /// Who holds the unit, as its CM header says.
  static std::string getLocker(const IUnit* unit);
  static std::string getOwner(const IUnit* unit) { return getLocker(unit); }
};

}  // namespace veldra
