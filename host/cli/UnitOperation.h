#pragma once

#include <functional>

#include "cm/core/CMArguments.h"
#include "cm/core/CMDiagnostic.h"
#include "cm/host/IUnit.h"
#include "cm/ui/logic/CommandTable.h"
#include "host/cli/Commands.h"
#include "host/cli/Rearranging.h"
#include "host/cli/UnitSelection.h"

namespace veldra::host::cli {

/// What distinguishes one command on units from another.
struct UnitOperation {
  using Run =
      std::function<int(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics)>;

  /// What it does, from the table that the windows go by as well; null for what only this program
  /// has, which says it by itself.
  const CommandRow* row = nullptr;
  Run run{};
  const char* templateProperty = nullptr;  ///< Where the tool's command stands.
  const char* action;                      ///< "check in"
  const char* pastAction;                  ///< "checked in"
  CMMode::Mode mode;
  AllUnits all;      ///< What "--all" means for it, and the content of packages for "-r".
  const char* lock;  ///< What it does to the lock: "taken", "given back" or "untouched".
  ArchivedUnits archived = ArchivedUnits::Only;  ///< The same, by what the archive holds.
  bool outputIsResult = false;                   ///< What the tool prints is what the user wants.
  bool recursiveReloads = false;  ///< The recursive operation leaves it to the host to load files.
  Rearranging::Plan plan{};       ///< For operations that take units from their places.
  /// With "-r": whether a package is done with everything in it at once.
  bool (*wholePackage)(const UnitCore& package) = nullptr;
  /// Does it where the project works with a command-line tool, and the module has only the
  /// provider's way.
  ExitCode (*byTool)(Session& session, const Invocation& invocation) = nullptr;
  /// Why providers do not have it, and what to do instead; null when they do.
  const char* providerAdvice = nullptr;
};

/// The sequence that all of them share: comment and label, project, units, the call, the report.
ExitCode runUnitOperation(const Invocation& invocation, const UnitOperation& operation);

}  // namespace veldra::host::cli
