#include "cm/core/CMFacade.h"
#include "cm/host/IPN.h"
#include "cm/templates/CMProperty.h"
#include "host/cli/UnitOperation.h"
#include "host/cli/printing/BytesAsText.h"

namespace veldra::host::cli {

namespace {

/// Moves units to the folder, which is an argument in front of all others.
int moveTo(std::string& folder, UnitList& units, ArgumentList& arguments,
           DiagnosticList& diagnostics) {
  CMTargetFile target(folder);
  arguments.insert(arguments.begin(), &target);
  const int result = CMFacade::MoveMember(units, arguments, diagnostics);
  arguments.erase(arguments.begin());
  return result;
}

/// Whether the unit can go with everything it holds. A provider takes all of it or nothing; one
/// that leaves packages to a tool needs the tool's command.
bool canGoWhole(const UnitCore& unit) {
  if (unit.children().empty()) return true;
  if (CMProperty::useSccCompliantTool() != 0 && CMProperty::isHybridModePossible() == 0)
    return true;
  std::string command;
  return CMProperty::getToolPropertyValue(IPN::MoveDirectory, command) && !command.empty();
}

}  // namespace

ExitCode runMove(const Invocation& invocation) {
  Options options = invocation.options;
  if (options.units.size() < 2) {
    throw CommandError(ExitCode::WrongUsage,
                       "Name the units, and at the end the package that they move to.");
  }
  const std::string targetName = options.units.back();
  options.units.pop_back();
  std::string folder;
  const UnitOperation operation{
      .run =
          [&folder](UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics) {
            return moveTo(folder, units, arguments, diagnostics);
          },
      .templateProperty = IPN::Rename,
      .action = "move",
      .pastAction = "moved",
      .mode = CMMode::ReadOnly,
      .all = AllUnits::Every,
      .lock = "given back",
      .plan = [&](UnitCore& unit) -> Result<Rearrangement> {
        UnitCore* const target = unitNamed(unit.project(), targetName);
        if (target == nullptr) {
          return Result<Rearrangement>::failure("There is no single package \"" +
                                                textForPeople(targetName) + "\" to move it to.");
        }
        if (const auto reason = obstacleToFolder(unit, IPN::MoveDirectory)) {
          return Result<Rearrangement>::failure(*reason);
        }
        if (!canGoWhole(unit)) {
          return Result<Rearrangement>::failure(
              "The tool cannot move a package as a whole. Move its units one by one.");
        }
        folder = target->record().folder->path;
        return Rearrangement::planMove(unit, *target);
      }};
  return runUnitOperation({invocation.command, options, invocation.console}, operation);
}

}  // namespace veldra::host::cli
