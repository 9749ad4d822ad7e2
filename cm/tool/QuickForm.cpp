#include "cm/tool/QuickForm.h"

#include <string>

#include "cm/host/LogTrace.h"
#include "cm/tool/CMToolShellInterface.h"

namespace veldra {

bool runQuickForm(const CommandTemplate& ordinary, ArgumentList& arguments, const OperationRow& row,
                  ToolAnswer& answer) {
  const std::string command = expandedForm(ordinary, "Quick", arguments);
  if (command.empty()) return false;
  VELDRA_TRACE(row.traceBefore, command);
  if (!theCMToolShellInterface().TryExecute(command, answer.output)) return false;
  VELDRA_TRACE(row.traceAfter, answer.output);
  return true;
}

}  // namespace veldra
