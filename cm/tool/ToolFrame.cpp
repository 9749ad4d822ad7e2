#include "cm/tool/ToolFrame.h"

#include <optional>

#include "cm/host/Host.h"
#include "cm/host/MessageIds.h"
#include "cm/tool/CMToolShellInterface.h"
#include "cm/tool/CommandText.h"

namespace veldra {

void UnitProgress::endsByCommand(int expanded, int executed) {
  const CommandEnd& last = theCMToolShellInterface().lastCommandEnd();
  if (expanded != 1) {
    endsAs(UnitEnd::NotExpanded);
  } else if (executed == 0) {
    endsAs(UnitEnd::NotRun);
  } else if (last.failed) {
    endsAs(UnitEnd::ToolFailed, last.words);
  }
}

bool hasCMTool(CMOperation& operation, DiagnosticList& diagnostics, bool hybrid) {
  std::string message;
  if (operation.isCMTool(message, nullptr, hybrid) != 0) return true;
  diagnostics.emplace_back(CMDiagnostic::Failed, message, nullptr);
  return false;
}

bool refuseUnsafeName(const IUnit& unit, DiagnosticList& diagnostics) {
  const std::string file = unit.getFullFileName();
  const std::optional<std::string> reason = unsafeInCommand(file);
  if (!reason) return false;
  diagnostics.emplace_back(CMDiagnostic::Failed,
                           formatMessage(MessageId::UnsafeFileName, {file, *reason}), &unit);
  return true;
}

int runTraced(const std::string& command, const char* traceBefore, const char* traceAfter,
              std::string& output, std::string& errorText) {
  VELDRA_TRACE(traceBefore, command);
  const int executed = theCMToolShellInterface().Execute(command, output, errorText, "");
  VELDRA_TRACE(traceAfter, output);
  return executed;
}

}  // namespace veldra
