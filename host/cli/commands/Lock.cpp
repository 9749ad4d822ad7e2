#include "host/cli/UnitOperation.h"

namespace veldra::host::cli {

ExitCode runLock(const Invocation& invocation) {
  static const UnitOperation operation{.row = commandRow(DialogCommand::Lock),
                                       .action = "lock",
                                       .pastAction = "locked",
                                       .mode = CMMode::ReadWrite,
                                       .all = AllUnits::ReadOnly,
                                       .lock = "taken",
                                       .providerAdvice =
                                           "A source control provider locks units when it checks "
                                           "them out: use \"veldra-cm checkout\"."};
  return runUnitOperation(invocation, operation);
}

}  // namespace veldra::host::cli
