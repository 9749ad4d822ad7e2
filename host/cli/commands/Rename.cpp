#include "cm/core/CMFacade.h"
#include "cm/core/HybridRule.h"
#include "cm/host/IPN.h"
#include "host/cli/UnitOperation.h"

namespace veldra::host::cli {

ExitCode runRename(const Invocation& invocation) {
  Options options = invocation.options;
  options.units = {*options.unit};
  std::string newFile;
  const UnitOperation operation{
      .run =
          [&newFile](UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics) {
            return CMFacade::RenameMember(units.front(), placeOf(*units.front()), newFile,
                                          arguments, diagnostics);
          },
      .templateProperty = IPN::Rename,
      .action = "rename",
      .pastAction = "renamed",
      .mode = CMMode::ReadOnly,
      .all = AllUnits::Every,
      .lock = "given back",
      .plan = [&](UnitCore& unit) -> Result<Rearrangement> {
        if (const auto reason = obstacleToFolder(unit, IPN::RenameDirectory)) {
          return Result<Rearrangement>::failure(*reason);
        }
        Result<Rearrangement> planned = Rearrangement::planRename(unit, *options.name);
        if (planned) newFile = planned->newFile();
        return planned;
      }};
  return runUnitOperation({invocation.command, options, invocation.console}, operation);
}

}  // namespace veldra::host::cli
