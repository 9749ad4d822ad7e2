#include "host/cli/UnitOperation.h"

namespace veldra::host::cli {

ExitCode runFetch(const Invocation& invocation) {
  static const UnitOperation operation{.row = commandRow(DialogCommand::Fetch),
                                       .action = "fetch",
                                       .pastAction = "fetched",
                                       .mode = CMMode::ReadOnly,
                                       .all = AllUnits::Every,
                                       .lock = "untouched"};
  return runUnitOperation(invocation, operation);
}

}  // namespace veldra::host::cli
