#include "cm/tool/CMRecCheckIn.h"

#include "cm/host/IPN.h"

namespace veldra {

const OperationRow& CMRecCheckIn::row() const {
  static constexpr OperationRow row{
      .name = "Recursive Check In",
      .templateProperty = IPN::CMCheckIn,
      .traceBefore = "Executing the following command to recursively check in the file(s): ",
      .traceAfter = "Recursive check in command returned the following: ",
      .save = SaveRule::Always,
      .choosesArchive = true,
      .handlerKind = CMVDYHandler::CheckIn,
      .tellsUnchanged = true};
  return row;
}

void CMRecCheckIn::after(UnitRun& run) const {
  updateHeaderAndMode(*run.unit);
}

}  // namespace veldra
