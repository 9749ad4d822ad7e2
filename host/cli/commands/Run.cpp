#include <string>

#include "cm/core/CMArchive.h"
#include "cm/core/CMUnit.h"
#include "cm/templates/CMProperty.h"
#include "cm/tool/CMToolShellInterface.h"
#include "cm/tool/CommandText.h"
#include "host/cli/CallArguments.h"
#include "host/cli/Comment.h"
#include "host/cli/Session.h"
#include "host/cli/UnitDescription.h"
#include "host/cli/UnitOutcome.h"
#include "host/cli/UnitSelection.h"
#include "host/cli/printing/BytesAsText.h"
#include "host/cli/printing/FailureListing.h"
#include "host/cli/printing/Listing.h"
#include "host/cli/printing/Report.h"
#include "host/platform/Secrets.h"

namespace veldra::host::cli {

namespace {

/// Runs the command of a property, once for each unit or once without any.
class PropertyRun {
 public:
  PropertyRun(Session& session, std::string property, const std::string& comment)
      : m_session(session),
        m_property(std::move(property)),
        m_arguments(callArguments({.label = session.options().label,
                                   .comment = comment,
                                   .projectDirectory = session.project().getProjectDirectory()},
                                  session.options().dryRun)) {
    m_arguments.list().push_back(&m_archive);
  }

  UnitRecord runFor(IUnit* unit) {
    UnitRecord record;
    if (unit == nullptr) {
      record.path = m_property;
      runCommand(record);
      return record;
    }
    record.path = projectPath(*unit);
    if (const std::optional<std::string> reason = unsafeAsFileName(unit->getFullFileName())) {
      record.result = UnitResult::Refused;
      record.message = "Its name contains " + *reason + ", which no command can carry.";
      return record;
    }
    CMUnit argument(unit);
    m_arguments.list().push_back(&argument);
    runCommand(record);
    m_arguments.list().pop_back();
    record.plan.file = unit->getFullFileName();
    unit->updateCMHeader();
    unit->updateMode("");
    return record;
  }

 private:
  void runCommand(UnitRecord& record) {
    std::string command;
    std::string extra;
    if (CMProperty::ExpandProperty(m_property, m_arguments.list(), command, extra) != 1) {
      record.result = UnitResult::Failed;
      record.message =
          failureOf({.file = record.path, .end = UnitEnd::NotExpanded}, m_property.c_str());
      return;
    }
    std::string output;
    std::string errorText;
    CMToolShellInterface& shell = theCMToolShellInterface();
    const int executed = shell.Execute(command, output, errorText, "");
    const CommandEnd& end = shell.lastCommandEnd();
    const UnitTrace trace{.file = record.path,
                          .end = executed == 0 ? UnitEnd::NotRun
                                 : end.failed  ? UnitEnd::ToolFailed
                                               : UnitEnd::Done,
                          .words = withoutSecrets(executed == 0 ? errorText : end.words),
                          .commands = {withoutSecrets(command)}};
    if (trace.end != UnitEnd::Done) record.result = UnitResult::Failed;
    record.message = trace.end == UnitEnd::Done ? output : failureOf(trace, m_property.c_str());
    if (m_session.options().dryRun) makePlan(trace, "untouched", record);
  }

  Session& m_session;
  std::string m_property;
  CMArchive m_archive{std::string()};
  CallArguments m_arguments;
};

void print(const Report& report, const Invocation& invocation) {
  Console& console = invocation.console;
  if (invocation.options.json) return printJson(report, console.out);
  FailureListing failures(console.err);
  for (const UnitRecord& unit : report.units) {
    if (unit.result == UnitResult::Planned) {
      printPlan(unit, "run", console.out);
    } else if (unit.result == UnitResult::Done) {
      console.out << unit.message;
    } else {
      failures.add(unit);
    }
  }
}

}  // namespace

ExitCode runRun(const Invocation& invocation) {
  const Options& options = invocation.options;
  const std::string comment = readComment(options, invocation.console.in);
  Session session(invocation);
  session.openProject();
  const std::string& property = *options.property;
  if (CMProperty::getToolProperty(property) == nullptr) {
    throw CommandError(ExitCode::NothingDone,
                       "The project's tool has no property \"" + property +
                           "\". \"veldra-cm property list\" shows those that there are.");
  }
  PropertyRun run(session, property, comment);
  Report report{.command = invocation.command.name};
  UnitSelection selection = selectByName(session.project(), options.units);
  report.units = std::move(selection.unknown);
  if (options.units.empty()) report.units.push_back(run.runFor(nullptr));
  for (IUnit* unit : selection.units) {
    if (wasInterrupted()) break;
    report.units.push_back(run.runFor(unit));
  }
  session.save(false);
  print(report, invocation);
  return wasInterrupted() ? ExitCode::Interrupted : exitCodeOf(report.units);
}

}  // namespace veldra::host::cli
