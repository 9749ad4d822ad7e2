#include "cm/tool/CMRecCheckOutFromArchive.h"

#include "cm/host/IPN.h"

namespace veldra {

const OperationRow& CMRecCheckOutFromArchive::row() const {
  static constexpr OperationRow row{
      .name = "Recursive Check Out from Archive",
      .templateProperty = IPN::CMCheckOutFromArchive,
      .traceBefore =
          "Executing the following command to recursively check out the file(s) from the archive: ",
      .traceAfter = "Recursive check out from the archive command returned the following: ",
      .save = SaveRule::IfSaveOnCheckOutIsDue,
      .asksOverwrite = true,
      .keeps = KeepRule::EveryFile,
      .handlerKind = CMVDYHandler::CheckOut};
  return row;
}

void CMRecCheckOutFromArchive::after(ItemRun& run) const {
  completeHandler(run);
}

}  // namespace veldra
