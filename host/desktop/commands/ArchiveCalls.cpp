#include "host/desktop/commands/ArchiveCalls.h"

#include "cm/core/CMArchive.h"
#include "cm/core/CMFacade.h"
#include "cm/core/CallArguments.h"
#include "cm/ui/logic/GuardedCall.h"
#include "cm/ui/logic/StatusRefresh.h"
#include "host/cli/Connection.h"

namespace veldra::host::desktop {
namespace {

CommandReport reportOf(const DiagnosticList& diagnostics, const BatchResults& results) {
  CommandReport report;
  report.wasCancelled = results.wasCancelled();
  for (const UnitResult& result : results.all()) {
    if (result.end != UnitEnd::Done) report.failures.push_back(result);
  }
  report.messages = failuresOfNoUnit(diagnostics, results.all());
  return report;
}

}  // namespace

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
