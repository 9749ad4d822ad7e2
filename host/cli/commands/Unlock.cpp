#include "host/cli/UnitOperation.h"

namespace veldra::host::cli {

ExitCode runUnlock(const Invocation& invocation) {
  static const UnitOperation operation{.row = commandRow(DialogCommand::Unlock),
                                       .action = "unlock",
                                       .pastAction = "unlocked",
                                       .mode = CMMode::ReadOnly,
                                       .all = AllUnits::Writable,
                                       .lock = "given back",
                                       .providerAdvice =
                                           "A source control provider gives locks back when it "
                                           "checks units in, or at \"veldra-cm undo\"."};
  return runUnitOperation(invocation, operation);
}

}  // namespace veldra::host::cli
