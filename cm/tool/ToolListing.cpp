#include "cm/tool/ToolListing.h"

#include <string>
#include <string_view>

#include "cm/core/CMArchive.h"
#include "cm/host/IPN.h"
#include "cm/templates/CMProperty.h"
#include "cm/tool/ArchiveListing.h"
#include "cm/tool/CMToolShellInterface.h"
#include "cm/tool/ToolFrame.h"

namespace veldra {

int runListing(const ListingRow& row, CMArchiveItemList& items, ArgumentList& arguments) {
  ArchiveListing listing;
  CMArchive archive{std::string()};
  const PushedArgument pushed(arguments, archive);
  UnitProgress progress(row.name, 1, 1, CMArchive::getMainArchive());

  std::string command;
  std::string output;
  std::string errorText;
  int status = CMProperty::ExpandProperty(row.templateProperty, arguments, command, errorText);
  const int expanded = status;
  if (status == 1) {
    theCMToolShellInterface().followNextOutput(
        [&listing](std::string_view soFar) { listing.readAhead(soFar); });
    status = runTraced(command, row.traceBefore, row.traceAfter, output, errorText);
  }
  progress.endsByCommand(expanded, status);
  return status == 1 ? listing.read(output, status, items) : status;
}

int listWorkspaceVersions(CMArchiveItemList& items, ArgumentList& arguments) {
  static constexpr ListingRow row{
      .name = "List Versions",
      .templateProperty = IPN::WorkspaceVersions,
      .traceBefore = "Executing the following command to list the versions of the files: ",
      .traceAfter = "List versions command returned the following: "};
  return runListing(row, items, arguments);
}

}  // namespace veldra
