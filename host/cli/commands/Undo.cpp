#include "cm/core/CMFacade.h"
#include "host/cli/UnitOperation.h"

namespace veldra::host::cli {

ExitCode runUndo(const Invocation& invocation) {
  static const UnitOperation operation{.run = CMFacade::Uncheckout,
                                       .templateProperty = "UnLock",
                                       .action = "undo",
                                       .pastAction = "undone",
                                       .mode = CMMode::ReadOnly,
                                       .all = AllUnits::Writable,
                                       .lock = "given back"};
  return runUnitOperation(invocation, operation);
}

}  // namespace veldra::host::cli
