#include "host/cli/UnitOperation.h"

namespace veldra::host::cli {

ExitCode runCheckOut(const Invocation& invocation) {
  static const UnitOperation operation{.row = commandRow(DialogCommand::CheckOut),
                                       .action = "check out",
                                       .pastAction = "checked out",
                                       .mode = CMMode::ReadWrite,
                                       .all = AllUnits::ReadOnly,
                                       .lock = "taken",
                                       .recursiveReloads = true};
  return runUnitOperation(invocation, operation);
}

}  // namespace veldra::host::cli
