#include "cm/core/CMFacade.h"
#include "host/cli/UnitOperation.h"

namespace veldra::host::cli {

namespace {

// The name stands for archive items, too.
int undo(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics) {
  return CMFacade::Uncheckout(units, arguments, diagnostics);
}

}  // namespace

ExitCode runUndo(const Invocation& invocation) {
  static const UnitOperation operation{.run = undo,
                                       .runRecursive = CMFacade::RecUncheckout,
                                       .templateProperty = "UnLock",
                                       .action = "undo",
                                       .pastAction = "undone",
                                       .mode = CMMode::ReadOnly,
                                       .all = AllUnits::Writable,
                                       .lock = "given back",
                                       .recursiveReloads = true};
  return runUnitOperation(invocation, operation);
}

}  // namespace veldra::host::cli
