#pragma once

#include <string>
#include <vector>

#include "cm/core/CMOperation.h"

namespace veldra {

/// Checks units out and reloads them. What the user has checked out already is left as it is, and a
/// writable file is overwritten only with the user's consent.
///
/// The project's SCC property "UnrollLoops" makes it one call for all files; the name promises the
/// opposite, and projects rely on what it does. The result is 0 whatever became of the units: their
/// status, their mode, the progress and the messages tell.
class CheckOutSCC : public CMWorkspaceOperation {
 public:
  int operator()(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics,
                 bool hybrid) override;
};

}  // namespace veldra
