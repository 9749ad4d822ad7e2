#include "host/cli/ArchiveContent.h"
#include "host/cli/CommandPlan.h"
#include "host/cli/Session.h"
#include "host/cli/printing/BytesAsText.h"
#include "host/cli/printing/Listing.h"
#include "host/cli/printing/Report.h"

namespace veldra::host::cli {

ExitCode runLs(const Invocation& invocation) {
  Console& console = invocation.console;
  Session session(invocation);
  session.openProject();
  ArchiveContent content = listArchive(session);
  if (invocation.options.dryRun && !content.commands.empty()) {
    printCommandPlan(invocation, {}, content.commands);
    return ExitCode::AllDone;
  }
  const Report report{.command = invocation.command.name,
                      .units = std::move(content.files),
                      .message = content.failure};
  if (invocation.options.json) {
    printJson(report, console.out);
  } else if (!report.units.empty()) {
    printListing(report.units, console.out);
  }
  if (!report.message.empty()) console.err << linesForPeople(report.message) << '\n';
  if (wasInterrupted()) return ExitCode::Interrupted;
  if (report.message.empty()) return ExitCode::AllDone;
  return report.units.empty() ? ExitCode::NothingDone : ExitCode::SomeFailed;
}

}  // namespace veldra::host::cli
