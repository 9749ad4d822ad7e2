#include "cm/tool/CMListArchive.h"

#include "cm/core/CMArchive.h"
#include "cm/host/IModel.h"
#include "cm/host/IPN.h"
#include "cm/templates/CMProperty.h"
#include "cm/tool/ArchiveListing.h"
#include "cm/tool/ToolFrame.h"

namespace veldra {

int CMListArchive::operator()(CMArchiveItemList& items, ArgumentList& arguments,
                              DiagnosticList& diagnostics) {
  if (!hasCMTool(*this, diagnostics)) return 0;
  if (CurrentWorkspace::GetActiveProject() == nullptr) return 0;
  const ArchiveListing listing;
  CMArchive archive{std::string()};
  const PushedArgument pushed(arguments, archive);
  UnitProgress progress("List Archive", 1, 1, CMArchive::getMainArchive());

  std::string command;
  std::string output;
  std::string errorText;
  int status = CMProperty::ExpandProperty(IPN::CMListArchive, arguments, command, errorText);
  const int expanded = status;
  if (status == 1) {
    status =
        runTraced(command, "Executing the following command to list the files in the archive: ",
                  "List archive command returned the following: ", output, errorText);
  }
  progress.endsByCommand(expanded, status);
  return status == 1 ? listing.read(output, status, items) : status;
}

}  // namespace veldra
