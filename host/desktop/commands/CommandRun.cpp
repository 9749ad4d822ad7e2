#include "host/desktop/commands/CommandRun.h"

#include <algorithm>

#include "cm/core/CMArchive.h"
#include "cm/core/CMAskOnCheckoutGuard.h"
#include "cm/core/CMFacade.h"
#include "cm/ui/logic/GuardedCall.h"
#include "cm/ui/logic/StatusRefresh.h"
#include "host/cli/Connection.h"

namespace veldra::host::desktop {
namespace {

CommandReport reportOf(const DiagnosticList& diagnostics, const BatchResults& results) {
  CommandReport report;
  report.wasCancelled = results.wasCancelled();
  report.remarks = results.remarks();
  for (const UnitResult& result : results.all()) {
    if (result.end == UnitEnd::Done) {
      ++report.done;
    } else {
      report.failures.push_back(result);
    }
  }
  const auto isTold = [&report](const std::string& message) {
    return std::ranges::any_of(report.failures, [&message](const UnitResult& failure) {
      return message.find(failure.file) != std::string::npos || message == failure.words;
    });
  };
  for (const CMDiagnostic& diagnostic : diagnostics) {
    const bool isFailure = diagnostic.getStatus() == CMDiagnostic::Failed;
    if (isFailure && !diagnostic.getMessage().empty() && !isTold(diagnostic.getMessage())) {
      report.messages.push_back(diagnostic.getMessage());
    }
  }
  return report;
}

}  // namespace

CommandReport runCommand(const WindowCommand& row, UnitList units, CommandOptions options,
                         BatchResults& results) {
  const CommandRow& command = *commandRow(row.command);
  results.start();
  options.mode = row.command == DialogCommand::CheckOut;
  DiagnosticList diagnostics;
  CallArguments arguments = OptionRules::arguments(command, options);
  const CMAskOnCheckoutGuard guard;
  guardedCall([&] { return command.call(units, arguments.list(), diagnostics); }, diagnostics);
  return reportOf(diagnostics, results);
}

CommandReport runOnArchive(Project& project, BatchResults& results,
                           const std::function<int(ArgumentList&, DiagnosticList&)>& call) {
  results.start();
  DiagnosticList diagnostics;
  CallArguments arguments = callArguments({.projectDirectory = project.getProjectDirectory()});
  guardedCall([&] { return call(arguments.list(), diagnostics); }, diagnostics);
  return reportOf(diagnostics, results);
}

bool refreshProviderStatus() {
  UnitList units;
  ArgumentList noArguments;
  DiagnosticList diagnostics;
  CMFacade::ListWorkspace(units, noArguments, diagnostics);
  return StatusRefresh::run(units);
}

CommandReport connectToArchive(Project& project, BatchResults& results) {
  if (const auto failure = cli::createArchive(CMArchive::getMainArchive())) {
    return {.messages = {*failure}};
  }
  return runOnArchive(project, results, [](ArgumentList& arguments, DiagnosticList& diagnostics) {
    UnitList units;
    return CMFacade::ConnectToArchive(units, arguments, diagnostics);
  });
}

}  // namespace veldra::host::desktop
