#include "cm/tool/DirectoryCommand.h"

#include <string>

#include "cm/core/TextTools.h"
#include "cm/host/IEnvironment.h"
#include "cm/templates/CMProperty.h"
#include "cm/tool/ToolFrame.h"

namespace veldra {

int runDirectoryCommand(const DirectoryCommand& row, std::initializer_list<Replacement> values,
                        CMOperation& operation, DiagnosticList& diagnostics, bool flag) {
  if (!hasCMTool(operation, diagnostics, flag)) return 0;
  std::string command;
  std::string root;
  if (!CMProperty::getToolPropertyValue(row.property, command, flag) || command.empty() ||
      omGetRoot(root) != 1) {
    return 0;
  }
  command = replaceAll(command, "$OMROOT", root);
  for (const Replacement& value : values) {
    command = replaceAll(command, value.keyword, value.value);
  }
  std::string output;
  std::string errorText;
  return runTraced(command, row.traceBefore, row.traceAfter, output, errorText);
}

}  // namespace veldra
