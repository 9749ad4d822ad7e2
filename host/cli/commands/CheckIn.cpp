#include "host/cli/UnitOperation.h"

namespace veldra::host::cli {

ExitCode runCheckIn(const Invocation& invocation) {
  static const UnitOperation operation{.row = commandRow(DialogCommand::CheckIn),
                                       .action = "check in",
                                       .pastAction = "checked in",
                                       .mode = CMMode::ReadOnly,
                                       .all = AllUnits::Writable,
                                       .lock = "given back"};
  return runUnitOperation(invocation, operation);
}

}  // namespace veldra::host::cli
