#include <optional>

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
#include "host/model/ProjectLoader.h"
#include "host/platform/CommandLine.h"

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

/// Who wants a tool for a folder that is a project has only taken the wrong command.
void refuseToControlProject(const Options& options) {
  if (!options.tool || projectFilesIn(options.directory).empty()) return;
  const std::string advice =
      joinCommandLine({"veldra-cm", "-p", options.directory, "connect", "--tool", *options.tool,
                       "--archive", options.archive.value_or("WHERE")});
  throw CommandError(
      ExitCode::NothingDone,
      options.directory + " is a project already. This puts it under control: " + advice);
}

ExitCode plan(const Invocation& invocation, const std::optional<std::string>& archive) {
  std::vector<std::string> steps = {"make a project of " +
                                    absolutePath(invocation.options.directory)};
  if (archive && isToBeMade(*archive)) steps.push_back("make the archive " + *archive);
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
      << "next       veldra-cm connect --tool NAME --archive WHERE  (\"veldra-cm pack list\" shows "
         "the tools)\n";
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
  refuseToControlProject(options);
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
