#include "cm/tool/CMRenameMember.h"

#include "cm/core/HybridRule.h"
#include "cm/core/TextTools.h"
#include "cm/host/IPN.h"
#include "cm/host/IUserMessages.h"
#include "cm/host/MessageIds.h"

namespace veldra {

const OperationRow& CMRenameMember::row() const {
  static constexpr OperationRow row{
      .name = "Rename",
      .templateProperty = IPN::Rename,
      .traceBefore = "Executing the following command to rename the file: ",
      .traceAfter = "Rename command returned the following: ",
      .keeps = KeepRule::WritableFiles,
      .isHybrid = true,
      .tellsNotes = true};
  return row;
}

std::optional<CMNameChange> CMRenameMember::nameChange(const IUnit& unit,
                                                       const UnitCallFrame& call) const {
  const std::string oldName = argumentValue(call.arguments, "oldName");
  return std::optional<CMNameChange>(std::in_place, oldName.empty() ? placeOf(unit) : oldName,
                                     argumentValue(call.arguments, "newName"));
}

CommandTemplate CMRenameMember::templateFor(IUnit& unit, const UnitCallFrame& call) const {
  const CommandTemplate file{.property = row().templateProperty, .providerMetaclass = call.hybrid};
  std::optional<CMNameChange> change = nameChange(unit, call);
  if (change->substitute("olddir") == change->substitute("newdir")) return file;
  return templateForDirectory(
      unit, {.property = IPN::RenameDirectory, .providerMetaclass = call.hybrid}, file);
}

bool CMRenameMember::accepts(IUnit& unit, const UnitCallFrame& call) const {
  return canBeNamed(unit, {.property = IPN::RenameDirectory, .providerMetaclass = call.hybrid});
}

int CMRenameMember::operator()(UnitList& units, ArgumentList& arguments,
                               DiagnosticList& diagnostics, bool hybrid) {
  if (units.size() != 1 || argumentValue(arguments, "newName").empty()) {
    diagnostics.emplace_back(CMDiagnostic::Failed, loadMessage(MessageId::NoNewName), nullptr);
    return 0;
  }
  return UnitCommand::operator()(units, arguments, diagnostics, hybrid);
}

int CMRenameMember::operator()(IUnit* unit, const std::string& oldName, const std::string& newName,
                               DiagnosticList& diagnostics, bool hybrid) {
  UnitList units{unit};
  CMNameChange change(oldName, newName);
  ArgumentList arguments{&change};
  return (*this)(units, arguments, diagnostics, hybrid);
}

}  // namespace veldra
