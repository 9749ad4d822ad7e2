#include "cm/tool/CMAddMember.h"

#include "cm/core/CMFacade.h"
#include "cm/core/CMOutputer.h"
#include "cm/core/TextTools.h"
#include "cm/host/Host.h"
#include "cm/host/IPN.h"
#include "cm/host/IProperty.h"
#include "cm/host/MessageIds.h"
#include "cm/templates/CMProperty.h"
#include "cm/tool/DirectoryAdd.h"

namespace veldra {

namespace {

/// Whether the project's tool adds directory by directory.
bool addsByDirectory() {
  const IProperty* const tool = CMProperty::getProjectProperty(IPN::General, IPN::CMTool);
  return tool != nullptr && !equalsNoCase(tool->getValue(), "None") &&
         CMProperty::getProjectBool(tool->getValue(),
                                    "CheckOutCheckInDirectoryOnceDuringAddToArchive", false);
}

/// Marks every unit as changed, so that the save writes every file that is about to be added.
void saveAll(const UnitList& units) {
  const CMFacade::SaveCallback& save = CMFacade::saveCallbackFunc();
  if (units.empty() || !save) return;
  for (IUnit* unit : units) {
    if (unit != nullptr) unit->setModified(true, true);
  }
  save();
}

}  // namespace

const OperationRow& CMAddMember::row() const {
  static constexpr OperationRow row{
      .name = "Add to Archive",
      .templateProperty = IPN::CMAddMember,
      .traceBefore = "Executing the following command to add the file",
      .traceAfter = "Add member command returned the following: ",
      .choosesArchive = true,
      .handlerKind = CMVDYHandler::CheckIn};
  return row;
}

int CMAddMember::operator()(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics,
                            bool hybrid) {
  if (!hasCMTool(*this, diagnostics)) return 0;
  saveAll(units);
  return addsByDirectory() ? addDirectoryByDirectory(*this, units, diagnostics)
                           : UnitCommand::operator()(units, arguments, diagnostics, hybrid);
}

CommandTemplate CMAddMember::templateFor(IUnit& unit, const UnitCallFrame& /*call*/) const {
  static constexpr char ControlledFile[] = "AddMember_ControlledFile";
  const bool isOwn = unit.asEmbededFile() != nullptr && hasValue({.property = ControlledFile});
  return {.property = isOwn ? ControlledFile : row().templateProperty};
}

bool CMAddMember::accepts(IUnit& unit, const UnitCallFrame& /*call*/) const {
  if (!CMProperty::isPre40Compatible() || unit.asProject() != nullptr) return true;
  const std::string workingDir = CMProperty::getWorkingDir();
  if (unit.getDirectory() == workingDir) return true;
  const std::string text =
      formatMessage(MessageId::UnitOutsideWorkingDirectory,
                    {unit.getFileName(), workingDir, unit.getDirectory(), workingDir});
  notifyUserAndAsk(text, MessageBox::IconWarning);
  if (std::ostream* const out = getMainCMOutputer()()) *out << text << std::endl;
  return false;
}

void CMAddMember::after(UnitRun& run) const {
  run.unit->updateCMHeader();
  run.unit->updateMode("");
}

}  // namespace veldra
