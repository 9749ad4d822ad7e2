#pragma once

#include <string>
#include <unordered_map>

#include "cm/core/CMTraitFacade.h"
#include "cm/host/Export.h"
#include "cm/host/IUnit.h"

namespace veldra {

/// The versions that the units have here, as they are when this is made: what the tool has written
/// into their CM headers or, from a tool that writes nothing there, its own listing
/// (`IPN::WorkspaceVersions`).
class VELDRA_CM_EXPORT UnitVersions {
 public:
  UnitVersions();
  /// Empty for a unit without a version.
  std::string of(const IUnit& unit) const;

 private:
  CMHeaderReader m_headers;
  std::unordered_map<std::string, std::string> m_listed;  ///< By full file name.
};

}  // namespace veldra
