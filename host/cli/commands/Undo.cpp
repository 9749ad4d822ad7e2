#include "host/cli/UnitOperation.h"

namespace veldra::host::cli {

ExitCode runUndo(const Invocation& invocation) {
  static const UnitOperation operation{.row = commandRow(DialogCommand::UndoCheckOut),
                                       .action = "undo",
                                       .pastAction = "undone",
                                       .mode = CMMode::ReadOnly,
                                       .all = AllUnits::Writable,
                                       .lock = "given back",
                                       .recursiveReloads = true};
  return runUnitOperation(invocation, operation);
}

}  // namespace veldra::host::cli
