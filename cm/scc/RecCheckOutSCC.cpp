#include "cm/scc/RecCheckOutSCC.h"

#include "cm/core/WorkspaceUnits.h"
#include "cm/scc/CheckOutSCC.h"

namespace veldra {

int RecCheckOutSCC::operator()(UnitList& units, ArgumentList& arguments,
                               DiagnosticList& diagnostics, bool hybrid) {
  units = withNestedFiles(units);
  return CheckOutSCC()(units, arguments, diagnostics, hybrid);
}

}  // namespace veldra
