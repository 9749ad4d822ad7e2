#pragma once

#include "cm/core/CMArguments.h"
#include "cm/core/CMDiagnostic.h"
#include "cm/host/IUnit.h"
#include "host/cli/Commands.h"
#include "host/cli/UnitSelection.h"

namespace veldra::host::cli {

/// What distinguishes one command on units from another.
struct UnitOperation {
  int (*run)(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics);
  const char* templateProperty;  ///< Where the tool's command stands.
  const char* action;            ///< "check in"
  const char* pastAction;        ///< "checked in"
  CMMode::Mode mode;
  AllUnits all;      ///< What "--all" means for it.
  const char* lock;  ///< What it does to the lock: "taken", "given back" or "untouched".
  ArchivedUnits archived = ArchivedUnits::Only;  ///< The same, by what the archive holds.
  bool outputIsResult = false;                   ///< What the tool prints is what the user wants.
};

/// The sequence that all of them share: comment and label, project, units, the call, the report.
ExitCode runUnitOperation(const Invocation& invocation, const UnitOperation& operation);

}  // namespace veldra::host::cli
