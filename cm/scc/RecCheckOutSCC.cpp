#include "cm/scc/RecCheckOutSCC.h"

#include "cm/scc/ArchiveUnits.h"
#include "cm/scc/CheckOutSCC.h"

namespace veldra {

int RecCheckOutSCC::operator()(UnitList& units, ArgumentList& arguments,
                               DiagnosticList& diagnostics, bool hybrid) {
  units = withUnitsBelow(units);
  return CheckOutSCC()(units, arguments, diagnostics, hybrid);
}

}  // namespace veldra
