#include "cm/tool/CMMoveMember.h"

#include <utility>

#include "cm/core/HybridRule.h"
#include "cm/core/TextTools.h"
#include "cm/host/IEnvironment.h"
#include "cm/host/IPN.h"
#include "cm/host/IUserMessages.h"
#include "cm/host/MessageIds.h"

namespace veldra {

namespace {

constexpr OperationRow MoveRow{
    .name = "Move",
    .templateProperty = IPN::Rename,
    .traceBefore = "Executing the following command to move the file(s): ",
    .traceAfter = "Move command returned the following: ",
    .keeps = KeepRule::WritableFiles,
    .isHybrid = true,
    .tellsNotes = true};

/// Moves what lies below one path to another path.
class ContentMove : public UnitCommand {
 public:
  ContentMove(CommandTemplate command, std::string oldPath, std::string newPath)
      : m_command(command), m_oldPath(std::move(oldPath)), m_newPath(std::move(newPath)) {}

 protected:
  const OperationRow& row() const override { return MoveRow; }
  CommandTemplate templateFor(IUnit& /*unit*/, const UnitCallFrame& /*call*/) const override {
    return m_command;
  }
  std::optional<CMNameChange> nameChange(const IUnit& unit,
                                         const UnitCallFrame& /*call*/) const override {
    const std::string file = unit.getFullFileName();
    const std::string prefix = m_oldPath + omPathSeparator();
    const std::string rest =
        file.starts_with(prefix) ? file.substr(prefix.size()) : unit.getFileName();
    return std::optional<CMNameChange>(std::in_place, joinPath(m_oldPath, rest),
                                       joinPath(m_newPath, rest));
  }

 private:
  CommandTemplate m_command;
  std::string m_oldPath;
  std::string m_newPath;
};

}  // namespace

const OperationRow& CMMoveMember::row() const {
  return MoveRow;
}

CommandTemplate CMMoveMember::templateFor(IUnit& unit, const UnitCallFrame& call) const {
  return templateForDirectory(
      unit, {.property = IPN::MoveDirectory, .providerMetaclass = call.hybrid},
      {.property = row().templateProperty, .providerMetaclass = call.hybrid});
}

std::optional<CMNameChange> CMMoveMember::nameChange(const IUnit& unit,
                                                     const UnitCallFrame& call) const {
  const std::string file = placeOf(unit);
  std::string directory = argumentValue(call.arguments, "targetDir");
  // The directory of a package goes along under its own name.
  if (isPackageWithDirectory(const_cast<IUnit*>(&unit))) {
    directory = joinPath(directory, baseName(cutAtLastSeparator(file)));
  }
  return std::optional<CMNameChange>(std::in_place, file, joinPath(directory, baseName(file)));
}

bool CMMoveMember::accepts(IUnit& unit, const UnitCallFrame& call) const {
  return canBeNamed(unit, {.property = IPN::MoveDirectory, .providerMetaclass = call.hybrid});
}

int CMMoveMember::operator()(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics,
                             bool hybrid) {
  if (argumentValue(arguments, "targetDir").empty()) {
    diagnostics.emplace_back(CMDiagnostic::Failed, loadMessage(MessageId::NoMoveTarget), nullptr);
    return 0;
  }
  return UnitCommand::operator()(units, arguments, diagnostics, hybrid);
}

int CMMoveMember::movePackageContent(IUnit* package, UnitList& units, const std::string& oldPath,
                                     const std::string& newPath, ArgumentList& arguments,
                                     DiagnosticList& diagnostics, bool flag) {
  const CommandTemplate whole{.property = IPN::MoveDirectory, .providerMetaclass = flag};
  if (package != nullptr && hasValue(whole)) {
    UnitList packages{package};
    return ContentMove(whole, oldPath, newPath)(packages, arguments, diagnostics, flag);
  }
  const CommandTemplate each{.property = IPN::Rename, .providerMetaclass = flag};
  return ContentMove(each, oldPath, newPath)(units, arguments, diagnostics, flag);
}

}  // namespace veldra
