#include <filesystem>
#include <optional>
#include <system_error>

#include "cm/host/IPN.h"
#include "host/cli/CommandPlan.h"
#include "host/cli/Connection.h"
#include "host/cli/Packs.h"
#include "host/cli/Session.h"
#include "host/cli/UnitSelection.h"
#include "host/cli/printing/BytesAsText.h"
#include "host/cli/printing/Report.h"
#include "host/model/NewProject.h"
#include "host/model/PathNames.h"

namespace veldra::host::cli {

namespace {

NewProject requestOf(const Options& options, const std::optional<std::string>& tool,
                     const std::optional<std::string>& archive) {
  NewProject request;
  request.directory = options.directory;
  request.name = options.name.value_or("");
  // Files without a dot are units like any other, so listings have to show them.
  request.properties.push_back({{IPN::CM, IPN::General, "IgnoreArchiveItemsWithoutDot"}, "No"});
  if (tool) request.properties.push_back({{IPN::CM, IPN::General, IPN::CMTool}, *tool});
  if (archive) request.properties.push_back({{IPN::CM, *tool, IPN::CMArchive}, *archive});
  return request;
}

ExitCode plan(const Invocation& invocation, const std::optional<std::string>& archive) {
  std::vector<std::string> steps = {"make a project of " +
                                    absolutePath(invocation.options.directory)};
  std::error_code unknown;
  if (archive && isLocalPlace(*archive) && !std::filesystem::exists(*archive, unknown)) {
    steps.push_back("make the archive " + *archive);
  }
  if (archive) steps.push_back("connect the project to " + *archive);
  printCommandPlan(invocation, steps, {});
  return ExitCode::AllDone;
}

void print(const Invocation& invocation, const std::string& projectFile, std::size_t unitCount) {
  Console& console = invocation.console;
  if (invocation.options.json) {
    printJson(Report{.command = invocation.command.name}, console.out);
    return;
  }
  console.out << "project    " << textForPeople(projectFile) << "  (" << unitCount
              << (unitCount == 1 ? " unit)\n" : " units)\n");
  if (invocation.options.tool) return;
  console.out
      << "next       veldra-cm property set CMTool NAME  (\"veldra-cm pack list\" shows the "
         "tools), then veldra-cm connect --archive WHERE\n";
}

/// The archive of a project that has just been made. The project stays when this fails.
void connectNewProject(Session& session, const std::string& archive) {
  std::optional<std::string> failure = createArchive(archive);
  if (!failure) failure = connectToArchive(session, std::nullopt);
  session.save(true);
  if (!failure) return;
  throw CommandError(wasInterrupted() ? ExitCode::Interrupted : ExitCode::SomeFailed,
                     "The project is made, but not connected. " + *failure +
                         "\nConnect it with \"veldra-cm connect\" when that is mended.");
}

}  // namespace

ExitCode runInit(const Invocation& invocation) {
  const Options& options = invocation.options;
  if (options.archive && !options.tool) {
    throw CommandError(ExitCode::WrongUsage, "An archive needs a tool. Name it with --tool.");
  }
  std::optional<std::string> archive;
  if (options.archive) archive = archivePlace(*options.archive);
  Session session(invocation);
  std::optional<std::string> tool;
  if (options.tool) tool = packNamed(session.host().properties(), *options.tool).name;
  if (options.dryRun) return plan(invocation, archive);

  std::string error;
  const std::optional<std::string> file = createProject(requestOf(options, tool, archive), error);
  if (!file) throw CommandError(ExitCode::NothingDone, error);
  session.openProject(*file);
  if (archive) connectNewProject(session, *archive);
  print(invocation, *file, selectAll(AllUnits::Every).units.size());
  return ExitCode::AllDone;
}

}  // namespace veldra::host::cli
