#include "cm/core/CMDiagnostic.h"

#include "cm/core/CMArchiveItem.h"
#include "cm/host/IUnit.h"

namespace veldra {

namespace {
std::string ledBy(const std::string& type, const std::string& name, const std::string& message) {
  return type + " '" + name + "': " + message;
}
}  // namespace

CMDiagnostic::CMDiagnostic(int status, const std::string& message, const IUnit* unit)
    : m_status(status),
      m_message(unit != nullptr ? ledBy(unit->getTypeName(), unit->getName(), message) : message) {}

CMDiagnostic::CMDiagnostic(int status, const std::string& message, const CMArchiveItem& item)
    : m_status(status), m_message(ledBy(item.getType(), item.getName(), message)) {}

}  // namespace veldra
