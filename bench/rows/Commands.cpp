#include <cstdlib>

#include "bench/BenchProject.h"
#include "bench/Rows.h"
#include "bench/SideBySide.h"
#include "cm/core/CMFacade.h"

namespace veldra::bench {

double commandsAgainstShell() {
  const BenchProject project(1, "/bin/true");
  const UnitList one = project.units(1);
  return ratioOf(
      7,
      [&] {
        for (int i = 0; i < 1000; ++i) {
          UnitList units = one;
          ArgumentList arguments;
          DiagnosticList diagnostics;
          if (CMFacade::CheckIn(units, arguments, diagnostics) != 1) std::abort();
        }
      },
      [] {
        const char* const loop =
            "sh -c 'i=0; while [ $i -lt 1000 ]; do /bin/true; i=$((i+1)); done'";
        if (std::system(loop) != 0) std::abort();
      });
}

double checkoutGrowth() {
  const BenchProject project(10000, "/bin/true");
  const auto checkOut = [&](std::size_t count) {
    UnitList units = project.units(count);
    ArgumentList arguments;
    DiagnosticList diagnostics;
    if (CMFacade::CheckOut(units, arguments, diagnostics) != 1 || units.size() != count) {
      std::abort();
    }
  };
  return ratioOf(
      3, [&] { checkOut(10000); }, [&] { checkOut(1000); });
}

}  // namespace veldra::bench
