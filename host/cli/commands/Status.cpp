#include "cm/host/IUserMessages.h"
#include "host/cli/Session.h"
#include "host/cli/UnitSelection.h"
#include "host/cli/UnitStates.h"
#include "host/cli/printing/FailureListing.h"
#include "host/cli/printing/Listing.h"
#include "host/cli/printing/Report.h"

namespace veldra::host::cli {

namespace {

UnitSelection selectUnits(Session& session, const Options& options) {
  if (options.units.empty()) return selectAll(AllUnits::Every);
  UnitSelection selection = selectByName(session.project(), options.units, options.recursive);
  if (options.recursive) addContent(AllUnits::Every, selection.units);
  return selection;
}

}  // namespace

ExitCode runStatus(const Invocation& invocation) {
  Console& console = invocation.console;
  const bool asksArchive = invocation.options.update;
  Session session(invocation);
  if (asksArchive) {
    session.openProject();
  } else {
    session.openToLook();
  }
  const UnitSelection selection = selectUnits(session, invocation.options);
  Report report{.command = invocation.command.name};
  report.message =
      describeStates(session, selection.units,
                     asksArchive ? StatesFrom::Archive : StatesFrom::Files, report.units);
  if (!invocation.options.json) {
    if (selection.unknown.empty() || !report.units.empty()) {
      printListing(report.units, console.out);
    }
    FailureListing failures(console.err);
    for (const UnitRecord& unit : selection.unknown) failures.add(unit);
  }
  report.units.insert(report.units.end(), selection.unknown.begin(), selection.unknown.end());
  if (invocation.options.json) printJson(report, console.out);
  if (!report.message.empty()) session.door().notify(report.message, MessageLevel);
  if (wasInterrupted()) return ExitCode::Interrupted;
  if (!selection.unknown.empty()) return exitCodeOf(report.units);
  return report.message.empty() ? ExitCode::AllDone : ExitCode::SomeFailed;
}

}  // namespace veldra::host::cli
