#include "host/cli/UnitOperation.h"

namespace veldra::host::cli {

ExitCode runAdd(const Invocation& invocation) {
  static const UnitOperation operation{.row = commandRow(DialogCommand::AddToArchive),
                                       .action = "add",
                                       .pastAction = "added",
                                       .mode = CMMode::ReadOnly,
                                       .all = AllUnits::Every,
                                       .lock = "untouched",
                                       .archived = ArchivedUnits::LeaveOut};
  return runUnitOperation(invocation, operation);
}

}  // namespace veldra::host::cli
