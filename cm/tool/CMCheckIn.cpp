#include "cm/tool/CMCheckIn.h"

#include "cm/host/IPN.h"

namespace veldra {

const OperationRow& CMCheckIn::row() const {
  static constexpr OperationRow row{
      .name = "Check In",
      .templateProperty = IPN::CMCheckIn,
      .traceBefore = "Executing the following command to check in the file: ",
      .traceAfter = "Check in command returned the following: ",
      .save = SaveRule::Always,
      .choosesArchive = true,
      .handlerKind = CMVDYHandler::CheckIn,
      .tellsUnchanged = true};
  return row;
}

void CMCheckIn::after(UnitRun& run) const {
  updateHeaderAndMode(*run.unit);
}

}  // namespace veldra
