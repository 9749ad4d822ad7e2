#pragma once

#include <functional>
#include <string>
#include <vector>

#include "cm/core/CMArgument.h"
#include "cm/core/CMDiagnostic.h"
#include "cm/ui/logic/BatchResults.h"
#include "host/model/Project.h"

namespace veldra::host::desktop {

/// What became of a call.
struct CommandReport {
  bool wasCancelled = false;
  std::vector<UnitResult> failures{};
  std::vector<std::string> messages{};  ///< What was said about no unit in particular.
  bool isFine() const { return failures.empty() && messages.empty() && !wasCancelled; }
};

/// Runs what works on no unit in particular: `call` gets the arguments and the diagnostics.
CommandReport runOnArchive(Project& project, BatchResults& results,
                           const std::function<int(ArgumentList&, DiagnosticList&)>& call);

/// Reads the CM states of all units from the provider. False when that failed; the user has been
/// told.
bool refreshProviderStatus();

/// Connects the project to its archive, which is made first when it is a folder that does not exist
/// and the tool can make one.
CommandReport connectToArchive(Project& project, BatchResults& results);

}  // namespace veldra::host::desktop
