#include "cm/tool/QuickForm.h"

#include <string>

#include "cm/host/LogTrace.h"
#include "cm/templates/CMProperty.h"
#include "cm/tool/CMToolShellInterface.h"

namespace veldra {

bool runQuickForm(const CommandTemplate& ordinary, ArgumentList& arguments, const OperationRow& row,
                  ToolAnswer& answer) {
  const std::string property = std::string(ordinary.property) + "Quick";
  if (!hasValue({.property = property.c_str(), .providerMetaclass = ordinary.providerMetaclass})) {
    return false;
  }
  std::string command;
  std::string extra;
  if (CMProperty::ExpandProperty(property, arguments, command, extra, ordinary.providerMetaclass) !=
          1 ||
      command.empty()) {
    return false;
  }
  VELDRA_TRACE(row.traceBefore, command);
  if (!theCMToolShellInterface().TryExecute(command, answer.output)) return false;
  VELDRA_TRACE(row.traceAfter, answer.output);
  return true;
}

}  // namespace veldra
