#include "cm/tool/CMRecUnCheckout.h"

#include "cm/host/IPN.h"

namespace veldra {

const OperationRow& CMRecUnCheckout::row() const {
  static constexpr OperationRow row{
      .name = "Recursive Undo Check Out",
      // As for single units, there is no template of its own.
      .templateProperty = IPN::CMUnLockItem,
      .traceBefore = "Executing the following command to recursively uncheck out the file(s): ",
      .traceAfter = "Recursive uncheck out command returned the following: ",
      .keeps = KeepRule::EveryFile};
  return row;
}

int CMRecUnCheckout::operator()(UnitList& units, ArgumentList& arguments,
                                DiagnosticList& diagnostics, bool hybrid) {
  if (units.empty()) return 1;
  return UnitCommand::operator()(units, arguments, diagnostics, hybrid);
}

}  // namespace veldra
