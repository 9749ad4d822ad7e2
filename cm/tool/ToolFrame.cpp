#include "cm/tool/ToolFrame.h"

#include <algorithm>
#include <optional>

#include "cm/core/CMArchive.h"
#include "cm/core/HybridRule.h"
#include "cm/host/Host.h"
#include "cm/host/MessageIds.h"
#include "cm/templates/CMProperty.h"
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

void UnitProgress::endsAsUnchanged(const std::string& file) {
  endsAs(UnitEnd::Done, formatMessage(MessageId::NothingChanged, {file}));
}

CommandTemplate templateForDirectory(IUnit& unit, const CommandTemplate& forDirectory,
                                     const CommandTemplate& forFile) {
  return isPackageWithDirectory(&unit) && hasValue(forDirectory) ? forDirectory : forFile;
}

bool canBeNamed(IUnit& unit, const CommandTemplate& forDirectory) {
  return !unit.getFileName().empty() || (isPackageWithDirectory(&unit) && hasValue(forDirectory));
}

std::string expandedForm(const CommandTemplate& ordinary, const char* form,
                         ArgumentList& arguments) {
  const std::string property = std::string(ordinary.property) + form;
  if (!hasValue({.property = property.c_str(), .providerMetaclass = ordinary.providerMetaclass})) {
    return {};
  }
  std::string command;
  std::string extra;
  const int expanded =
      CMProperty::ExpandProperty(property, arguments, command, extra, ordinary.providerMetaclass);
  return expanded == 1 ? command : std::string();
}

bool hasValue(const CommandTemplate& command) {
  std::string value;
  return CMProperty::getToolPropertyValue(command.property, value, command.providerMetaclass) &&
         !value.empty();
}

bool hasCMTool(CMOperation& operation, DiagnosticList& diagnostics, bool hybrid) {
  std::string message;
  if (operation.isCMTool(message, nullptr, hybrid) != 0) return true;
  diagnostics.emplace_back(CMDiagnostic::Failed, message, nullptr);
  return false;
}

namespace {
/// True, and a diagnostic, when there is a reason.
bool refuseFor(const std::optional<std::string>& reason, const IUnit* unit, const std::string& name,
               DiagnosticList& diagnostics) {
  if (!reason) return false;
  diagnostics.emplace_back(CMDiagnostic::Failed,
                           formatMessage(MessageId::UnsafeFileName, {name, *reason}), unit);
  return true;
}
}  // namespace

bool refuseUnsafeName(const IUnit& unit, DiagnosticList& diagnostics) {
  const std::string name = placeOf(unit);
  return refuseFor(unsafeAsFileName(name), &unit, name, diagnostics);
}

bool refuseUnsafeName(const IUnit* unit, const std::string& name, DiagnosticList& diagnostics) {
  return refuseFor(unsafeInCommand(name), unit, name, diagnostics);
}

void chooseArchiveOf(const IUnit* unit) {
  if (CMArchive::getArchiveSelection() == CMArchive::ArchiveUnset) return;
  std::string archive;
  CMProperty::getBatchArchiveRecursive(unit, archive);
  CMArchive::setMainArchive(archive);
}

std::vector<std::string_view> ToolAnswer::marked(std::string_view mark) const {
  std::vector<std::string_view> rests;
  for (const std::string_view text :
       {std::string_view(output), std::string_view(errorText), std::string_view(setAside)}) {
    for (std::size_t from = 0; from < text.size();) {
      const std::size_t end = std::min(text.find('\n', from), text.size());
      const std::string_view line = text.substr(from, end - from);
      if (line.starts_with(mark)) rests.push_back(line.substr(mark.size()));
      from = end + 1;
    }
  }
  return rests;
}

std::unordered_set<std::string_view> ToolAnswer::files(std::string_view mark) const {
  const std::vector<std::string_view> names = marked(mark);
  return {names.begin(), names.end()};
}

int runTraced(const std::string& command, const char* traceBefore, const char* traceAfter,
              std::string& output, std::string& errorText) {
  VELDRA_TRACE(traceBefore, command);
  const int executed = theCMToolShellInterface().Execute(command, output, errorText, "");
  VELDRA_TRACE(traceAfter, output);
  return executed;
}

int runTraced(const std::string& command, const OperationRow& row, ToolAnswer& answer) {
  const int executed =
      runTraced(command, row.traceBefore, row.traceAfter, answer.output, answer.errorText);
  answer.setAside = theCMToolShellInterface().lastCommandEnd().setAside;
  return executed;
}

}  // namespace veldra
