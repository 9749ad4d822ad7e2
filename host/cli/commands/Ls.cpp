#include "cm/host/IUserMessages.h"
#include "host/cli/ArchiveContent.h"
#include "host/cli/CommandPlan.h"
#include "host/cli/Session.h"
#include "host/cli/printing/Listing.h"
#include "host/cli/printing/Report.h"

namespace veldra::host::cli {

namespace {

ExitCode exitCodeOf(const ArchiveContent& content, std::size_t fileCount) {
  if (wasInterrupted()) return ExitCode::Interrupted;
  if (content.failure.empty()) return ExitCode::AllDone;
  return fileCount == 0 ? ExitCode::NothingDone : ExitCode::SomeFailed;
}

}  // namespace

ExitCode runLs(const Invocation& invocation) {
  const Options& options = invocation.options;
  Console& console = invocation.console;
  Session session(invocation);
  session.openProject();
  JsonReport document(invocation.command.name, console.out);
  const ArchiveContent content =
      options.json ? listArchive(session, [&](const UnitRecord& file) { document.add(file); })
                   : listArchive(session);
  if (options.dryRun && !content.commands.empty()) {
    printCommandPlan(invocation, {}, content.commands);
    return ExitCode::AllDone;
  }
  if (options.json) {
    document.end(content.failure);
  } else if (!content.files.empty()) {
    printListing(content.files, console.out);
  }
  if (!content.failure.empty()) session.door().notify(content.failure, MessageLevel);
  return exitCodeOf(content, content.files.size() + document.unitCount());
}

}  // namespace veldra::host::cli
