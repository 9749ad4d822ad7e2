#pragma once

#include "cm/core/CMOperation.h"

namespace veldra {

/// Lists the units of the model that version control can know. Runs no command.
class CMListWorkspace : public CMWorkspaceOperation {
 public:
  int operator()(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics,
                 bool hybrid) override;
};

}  // namespace veldra
