#include "host/cli/UnitOperation.h"

namespace veldra::host::cli {

ExitCode runHistory(const Invocation& invocation) {
  static const UnitOperation operation{.row = commandRow(DialogCommand::History),
                                       .action = "show the history of",
                                       .pastAction = "showed the history of",
                                       .mode = CMMode::ReadOnly,
                                       .all = AllUnits::Every,
                                       .lock = "untouched",
                                       .outputIsResult = true};
  return runUnitOperation(invocation, operation);
}

}  // namespace veldra::host::cli
