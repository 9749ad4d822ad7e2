#include "cm/tool/CMRecCheckOut.h"

#include "cm/host/IPN.h"

namespace veldra {

const OperationRow& CMRecCheckOut::row() const {
  static constexpr OperationRow row{
      .name = "Recursive Check Out",
      .templateProperty = IPN::CMCheckOut,
      .traceBefore = "Executing the following command to recursively check out the file(s): ",
      .traceAfter = "Recursive check out command returned the following: ",
      .save = SaveRule::IfSaveOnCheckOut,
      .asksOverwrite = true,
      .choosesArchive = true,
      .keeps = KeepRule::WritableFiles,
      .handlerKind = CMVDYHandler::CheckOut};
  return row;
}

}  // namespace veldra
