#pragma once

#include <string>
#include <unordered_map>

#include "cm/core/CMTraitFacade.h"
#include "cm/host/Export.h"
#include "cm/host/IUnit.h"

namespace veldra {

/// The versions that the units have here, as they are when this is made: what the tool has written
/// into their CM headers or, for units where nothing is written, the tool's own listing
/// (`IPN::WorkspaceVersions`).
class VELDRA_CM_EXPORT UnitVersions {
 public:
  /// Asks for that listing only when one of these units needs it.
  explicit UnitVersions(const UnitList& units);
  /// False when that listing failed: then nothing can be compared.
  bool isKnown() const { return m_isKnown; }
  /// Empty for a unit without a version.
  std::string of(const IUnit& unit) const;

 private:
  std::string ofHeader(const IUnit& unit) const;

  CMHeaderReader m_headers;
  bool m_isKnown = true;
  bool m_readsHeaders;
  std::unordered_map<std::string, std::string> m_listed;  ///< By full file name.
};

}  // namespace veldra
