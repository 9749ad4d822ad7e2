#include "cm/core/CMFacade.h"
#include "host/cli/UnitOperation.h"

namespace veldra::host::cli {

ExitCode runCheckOut(const Invocation& invocation) {
  static const UnitOperation operation{.run = CMFacade::CheckOut,
                                       .templateProperty = "CheckOut",
                                       .action = "check out",
                                       .pastAction = "checked out",
                                       .mode = CMMode::ReadWrite,
                                       .all = AllUnits::ReadOnly,
                                       .lock = "taken"};
  return runUnitOperation(invocation, operation);
}

}  // namespace veldra::host::cli
