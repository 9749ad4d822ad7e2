#include "cm/tool/CMDeleteMember.h"

#include "cm/core/CMArchive.h"
#include "cm/core/HybridRule.h"
#include "cm/host/IPN.h"
#include "cm/tool/DirectoryCommand.h"

namespace veldra {

const OperationRow& CMDeleteMember::row() const {
  static constexpr OperationRow row{
      .name = "Delete",
      .templateProperty = IPN::Delete,
      .traceBefore = "Executing the following command to delete the file: ",
      .traceAfter = "Delete file command returned the following: ",
      .isHybrid = true,
      .tellsNotes = true};
  return row;
}

CommandTemplate CMDeleteMember::templateFor(IUnit& unit, const UnitCallFrame& call) const {
  return templateForDirectory(unit,
                              {.property = IPN::DeleteDirectory, .providerMetaclass = call.hybrid},
                              {.property = row().templateProperty});
}

bool CMDeleteMember::accepts(IUnit& unit, const UnitCallFrame& call) const {
  return canBeNamed(unit, {.property = IPN::DeleteDirectory, .providerMetaclass = call.hybrid});
}

int CMDeleteMember::deleteDirectory(const std::string& directory, ArgumentList& arguments,
                                    DiagnosticList& diagnostics, bool flag) {
  static constexpr DirectoryCommand row{
      .property = IPN::DeleteDirectory,
      .traceBefore = "Executing the following command to delete the directory: ",
      .traceAfter = "Delete directory command returned the following: "};
  if (refuseUnsafeName(nullptr, directory, diagnostics)) return 0;
  CMArchive archive{std::string()};
  const PushedArgument pushed(arguments, archive);
  return runDirectoryCommand(row, {{"$UnitDirPath", directory}}, *this, diagnostics, flag);
}

}  // namespace veldra
