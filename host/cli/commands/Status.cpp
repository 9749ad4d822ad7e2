#include "cm/host/IUserMessages.h"
#include "host/cli/Session.h"
#include "host/cli/UnitSelection.h"
#include "host/cli/UnitStates.h"
#include "host/cli/printing/Listing.h"
#include "host/cli/printing/Report.h"

namespace veldra::host::cli {

ExitCode runStatus(const Invocation& invocation) {
  Console& console = invocation.console;
  const bool asksArchive = invocation.options.update;
  Session session(invocation);
  if (asksArchive) {
    session.openProject();
  } else {
    session.openToLook();
  }
  Report report{.command = invocation.command.name};
  report.message =
      describeStates(session, selectAll(AllUnits::Every).units,
                     asksArchive ? StatesFrom::Archive : StatesFrom::Files, report.units);
  if (invocation.options.json) {
    printJson(report, console.out);
  } else {
    printListing(report.units, console.out);
  }
  if (!report.message.empty()) session.door().notify(report.message, MessageLevel);
  if (wasInterrupted()) return ExitCode::Interrupted;
  return report.message.empty() ? ExitCode::AllDone : ExitCode::SomeFailed;
}

}  // namespace veldra::host::cli
