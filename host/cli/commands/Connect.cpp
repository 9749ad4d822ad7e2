#include "host/cli/CommandPlan.h"
#include "host/cli/Connection.h"
#include "host/cli/Packs.h"
#include "host/cli/ProviderConnection.h"
#include "host/cli/Session.h"
#include "host/cli/printing/BytesAsText.h"
#include "host/cli/printing/Report.h"

#include "cm/core/CMArchive.h"
#include "cm/templates/CMProperty.h"

namespace veldra::host::cli {

ExitCode runConnect(const Invocation& invocation) {
  const Options& options = invocation.options;
  ConnectionRequest request;
  if (options.archive) request.place = archivePlace(*options.archive);
  Session session(invocation);
  if (options.tool) {
    request.tool = packNamed(session.host().properties(), *options.tool).name;
    session.openTrusted();
  } else {
    session.openProject();
  }
  if (options.dryRun && CMProperty::useSccCompliantTool() != 0) {
    // A provider runs no commands that could be held back.
    printCommandPlan(invocation, {"connect  " + request.place.value_or(connectedProject(session))},
                     {});
    return ExitCode::AllDone;
  }
  if (const std::optional<std::string> failure = connectProject(session, request)) {
    throw CommandError(wasInterrupted() ? ExitCode::Interrupted : ExitCode::NothingDone, *failure);
  }
  if (options.dryRun && !session.progress().traces().empty()) {
    std::vector<std::string> steps;
    if (request.tool && request.place && isToBeMade(*request.place)) {
      steps.push_back("make the archive " + *request.place);
    }
    printCommandPlan(invocation, steps, session.progress().traces().back().commands);
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
