#include <algorithm>
#include <iterator>

#include "host/cli/CommandPlan.h"
#include "host/cli/UnitOperation.h"
#include "host/cli/UnitStates.h"
#include "host/cli/printing/BytesAsText.h"
#include "host/cli/printing/FailureListing.h"
#include "host/cli/printing/Listing.h"
#include "host/cli/printing/Report.h"

namespace veldra::host::cli {

namespace {

void show(const Report& report, const Invocation& invocation) {
  Console& console = invocation.console;
  if (invocation.options.json) return printJson(report, console.out);
  FailureListing failures(console.err);
  for (const UnitRecord& unit : report.units) {
    if (unit.result == UnitResult::Done) {
      printProperties(unit, console.out);
    } else {
      failures.add(unit);
    }
  }
  if (!report.message.empty()) console.err << linesForPeople(report.message) << '\n';
}

/// A command-line tool has no window of properties; what it knows stands in its listing.
ExitCode tellWhatIsListed(Session& session, const Invocation& invocation) {
  const Options& options = invocation.options;
  session.setWindow(WindowUse::Quiet);
  const ArchiveContent content = listArchive(session);
  if (options.dryRun) {
    printCommandPlan(invocation, {}, content.commands);
    return ExitCode::AllDone;
  }
  if (!content.failure.empty()) throw CommandError(ExitCode::NothingDone, content.failure);
  UnitSelection selection =
      options.all ? selectAll(AllUnits::Every) : selectByName(session.project(), options.units);
  Report report{.command = invocation.command.name, .units = describeUnits(selection.units)};
  takeFromArchive(session, content, report.units);
  std::ranges::move(selection.unknown, std::back_inserter(report.units));
  show(report, invocation);
  return wasInterrupted() ? ExitCode::Interrupted : exitCodeOf(report.units);
}

}  // namespace

ExitCode runProperties(const Invocation& invocation) {
  static const UnitOperation operation{.row = commandRow(DialogCommand::Properties),
                                       .action = "show the properties of",
                                       .pastAction = "showed the properties of",
                                       .mode = CMMode::ReadOnly,
                                       .all = AllUnits::Every,
                                       .lock = "untouched",
                                       .outputIsResult = true,
                                       .byTool = tellWhatIsListed};
  return runUnitOperation(invocation, operation);
}

}  // namespace veldra::host::cli
