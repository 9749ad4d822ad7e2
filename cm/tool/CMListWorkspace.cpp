#include "cm/tool/CMListWorkspace.h"

#include "cm/core/WorkspaceUnits.h"

namespace veldra {

int CMListWorkspace::operator()(UnitList& units, ArgumentList& /*arguments*/,
                                DiagnosticList& /*diagnostics*/, bool /*hybrid*/) {
  units = workspaceUnits();
  return 1;
}

}  // namespace veldra
