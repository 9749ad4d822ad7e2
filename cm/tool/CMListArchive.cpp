#include "cm/tool/CMListArchive.h"

#include "cm/host/IModel.h"
#include "cm/host/IPN.h"
#include "cm/tool/ToolFrame.h"
#include "cm/tool/ToolListing.h"

namespace veldra {

int CMListArchive::operator()(CMArchiveItemList& items, ArgumentList& arguments,
                              DiagnosticList& diagnostics) {
  static constexpr ListingRow row{
      .name = "List Archive",
      .templateProperty = IPN::CMListArchive,
      .traceBefore = "Executing the following command to list the files in the archive: ",
      .traceAfter = "List archive command returned the following: "};
  if (!hasCMTool(*this, diagnostics)) return 0;
  if (CurrentWorkspace::GetActiveProject() == nullptr) return 0;
  return runListing(row, items, arguments);
}

}  // namespace veldra
