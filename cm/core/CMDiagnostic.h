#pragma once

#include <string>
#include <vector>

#include "cm/host/Export.h"

namespace veldra {

class CMArchiveItem;
class IUnit;

/// The result of an operation for one unit or archive item.
class VELDRA_CM_EXPORT CMDiagnostic {
 public:
  static constexpr int Succeeded = 1;
  static constexpr int Failed = 0;

  CMDiagnostic() = default;
  /// `unit` may be null; otherwise the message is led by the unit's type and name.
  CMDiagnostic(int status, const std::string& message, const IUnit* unit);
  CMDiagnostic(int status, const std::string& message, const CMArchiveItem& item);

  int getStatus() const { return m_status; }
  const std::string& getMessage() const { return m_message; }

 private:
  int m_status = Failed;
  std::string m_message;
};

/// Results in the order in which operations appended them; operations never clear the list.
using DiagnosticList = std::vector<CMDiagnostic>;

}  // namespace veldra
