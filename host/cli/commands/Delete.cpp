#include "cm/core/CMFacade.h"
#include "cm/host/IPN.h"
#include "cm/templates/CMProperty.h"
#include "host/cli/UnitOperation.h"

namespace veldra::host::cli {

namespace {

/// A package goes with its folder when the tool can do that; otherwise its units go one by one. A
/// project never goes, and neither do its units in its place.
bool goesWithFolder(const UnitCore& unit) {
  if (&unit == &static_cast<const UnitCore&>(unit.project())) return true;
  std::string command;
  return unit.record().directoryUnit && !obstacleToFolder(unit, IPN::DeleteDirectory) &&
         CMProperty::getToolPropertyValue(IPN::DeleteDirectory, command) && !command.empty();
}

}  // namespace

ExitCode runDelete(const Invocation& invocation) {
  const bool isRecursive = invocation.options.recursive;
  const UnitOperation operation{.run = CMFacade::DeleteMember,
                                .templateProperty = IPN::Delete,
                                .action = "delete",
                                .pastAction = "deleted",
                                .mode = CMMode::ReadOnly,
                                .all = AllUnits::Every,
                                .lock = "given back",
                                .plan = [isRecursive](UnitCore& unit) -> Result<Rearrangement> {
                                  Result<Rearrangement> planned =
                                      Rearrangement::planDelete(unit, goesWithFolder(unit));
                                  if (planned && !isRecursive && !unit.children().empty()) {
                                    return Result<Rearrangement>::failure(
                                        "It holds " + std::to_string(unit.children().size()) +
                                        " units of its own. Give -r to delete them with it.");
                                  }
                                  return planned;
                                },
                                .wholePackage = goesWithFolder};
  return runUnitOperation(invocation, operation);
}

}  // namespace veldra::host::cli
