#include "cm/ui/logic/UserDefinedCommand.h"

#include <utility>

#include "cm/core/CMFacade.h"
#include "cm/core/CMTranscation.h"
#include "cm/core/TextTools.h"
#include "cm/host/IEnvironment.h"
#include "cm/host/IPN.h"
#include "cm/host/IProperty.h"
#include "cm/templates/CMProperty.h"
#include "cm/tool/CMToolShellInterface.h"
#include "cm/ui/logic/FailureMessage.h"
#include "cm/ui/logic/GuardedCall.h"

namespace veldra {

namespace {

constexpr char BlockStart[] = "\"ARG=";

std::string archiveOf(const IUnit& unit) {
  std::string project;
  std::string auxPath;
  unit.getSccArchiveRecursive(project, auxPath);
  return project;
}

std::string forUnit(const std::string& pattern, const IUnit& unit) {
  std::string text = pattern;
  // A keyword that only a directory's name brings in is none.
  const auto fill = [&](const char* keyword, const std::string& value) {
    if (pattern.find(keyword) != std::string::npos) text = replaceAll(text, keyword, value);
  };
  fill("$Directory", unit.getDirectory());
  fill("$Path", unit.getDirectory() + omPathSeparator() + unit.getFileName());
  fill("$Ver", "");
  fill("$Archive", archiveOf(unit));
  return text;
}

std::string forUnits(const std::string& pattern, const UnitList& units) {
  std::string all;
  if (pattern.empty()) return all;
  for (const IUnit* unit : units) {
    if (unit == nullptr) continue;
    if (!all.empty()) all += ' ';
    all += forUnit(pattern, *unit);
  }
  return all;
}

int execute(const std::string& line, const std::string& transactionName) {
  if (const CMFacade::SaveCallback& save = CMFacade::saveCallbackFunc()) save();
  const CMTranscation transcation(nullptr, 1, CMTranscationType::TxnFreeCommand, transactionName);
  CMToolShellInterface& tool = theCMToolShellInterface();
  std::string output;
  std::string errors;
  return tool.Execute(line, output, errors, "") != 0 && !tool.lastCommandEnd().failed ? 1 : 0;
}

}  // namespace

std::string UserDefinedCommand::ExpandUserDefCommand(const std::string& command,
                                                     const UnitList& units) {
  std::string result = command;
  const std::size_t start = command.find(BlockStart);
  const std::size_t content = start + sizeof(BlockStart) - 1;
  const std::size_t end =
      start != std::string::npos ? command.find('"', content) : std::string::npos;
  if (end != std::string::npos) {
    const std::string pattern(trimmed(std::string_view(command).substr(content, end - content)));
    result = command.substr(0, start) + forUnits(pattern, units) + command.substr(end + 1);
  }
  std::string root;
  if (result.find("$OMROOT") != std::string::npos && omGetRoot(root) != 0) {
    result = replaceAll(result, "$OMROOT", root);
  }
  return result;
}

bool UserDefinedCommand::RunUserDefCommand(const std::string& command, const UnitList& units,
                                           const std::string& transactionName, int failureMessage) {
  if (command.empty()) return true;
  const std::string line = ExpandUserDefCommand(command, units);
  DiagnosticList diagnostics;
  const std::optional<int> result =
      guardedCall([&] { return execute(line, transactionName); }, diagnostics);
  if (result && *result != 0) return true;
  showFailure(failureMessage, diagnostics);
  return false;
}

bool UserDefinedCommand::isBehind(DialogCommand command) {
  return command == DialogCommand::RunTool ||
         (command >= DialogCommand::UserCommand1 && command <= DialogCommand::UserCommand4);
}

std::string UserDefinedCommand::commandOf(DialogCommand command) {
  std::string name = "RunCMToolCommand";
  if (command != DialogCommand::RunTool) {
    const int first = static_cast<int>(DialogCommand::UserCommand1);
    name = "UserDefCommand_" + std::to_string(static_cast<int>(command) - first + 1);
  }
  const IProperty* const property = CMProperty::getProjectProperty(IPN::General, name);
  return property != nullptr ? property->getValue() : std::string();
}

bool UserDefinedCommand::run(DialogCommand command, const UnitList& units) {
  const bool isTool = command == DialogCommand::RunTool;
  return RunUserDefCommand(commandOf(command), units,
                           isTool ? "Invoke Configuration Management Tool" : "User Defined Command",
                           MessageId::CommandFailed + static_cast<int>(command));
}

}  // namespace veldra
