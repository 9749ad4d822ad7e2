#include "host/cli/CommandPlan.h"
#include "host/cli/Connection.h"
#include "host/cli/ProviderConnection.h"
#include "host/cli/Session.h"
#include "host/cli/printing/BytesAsText.h"
#include "host/cli/printing/Report.h"

#include "cm/core/CMArchive.h"
#include "cm/templates/CMProperty.h"

namespace veldra::host::cli {

ExitCode runConnect(const Invocation& invocation) {
  const Options& options = invocation.options;
  std::optional<std::string> place;
  if (options.archive) place = archivePlace(*options.archive);
  Session session(invocation);
  session.openProject();
  if (options.dryRun && CMProperty::useSccCompliantTool() != 0) {
    // A provider runs no commands that could be held back.
    printCommandPlan(invocation, {"connect  " + place.value_or(connectedProject(session))}, {});
    return ExitCode::AllDone;
  }
  if (const std::optional<std::string> failure = connectToArchive(session, place)) {
    throw CommandError(wasInterrupted() ? ExitCode::Interrupted : ExitCode::NothingDone, *failure);
  }
  if (options.dryRun && !session.progress().traces().empty()) {
    printCommandPlan(invocation, {}, session.progress().traces().back().commands);
    return ExitCode::AllDone;
  }
  session.save(true);
  if (options.json) {
    printJson(Report{.command = invocation.command.name}, invocation.console.out);
  } else {
    const bool hasProvider = CMProperty::useSccCompliantTool() != 0;
    const std::string archive =
        hasProvider ? connectedProject(session) : CMArchive::getMainArchive();
    invocation.console.out << "connected  " << textForPeople(archive) << '\n';
  }
  return ExitCode::AllDone;
}

}  // namespace veldra::host::cli
