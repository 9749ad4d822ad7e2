#include <algorithm>
#include <map>

#include "cm/host/IUserMessages.h"
#include "cm/templates/CMProperty.h"
#include "host/cli/CommandPlan.h"
#include "host/cli/Session.h"
#include "host/cli/UnitSelection.h"
#include "host/cli/UnitStates.h"
#include "host/cli/printing/Listing.h"
#include "host/cli/printing/Report.h"

namespace veldra::host::cli {

namespace {

/// Nobody has it out and nobody needs to do anything.
bool isAtRest(const UnitRecord& unit) {
  return unit.state == "checked in" && unit.locker.empty();
}

/// How many units stand where, and those among them that a user may want to look at.
void printStanding(const std::vector<UnitRecord>& units, std::ostream& out) {
  std::map<std::string, std::size_t> counts;
  std::vector<UnitRecord> others;
  for (const UnitRecord& unit : units) {
    ++counts[unit.state];
    if (!isAtRest(unit)) others.push_back(unit);
  }
  for (const auto& [state, count] : counts) out << state << "  " << count << '\n';
  if (!others.empty()) printListing(others, out);
}

}  // namespace

ExitCode runRefresh(const Invocation& invocation) {
  Console& console = invocation.console;
  Session session(invocation);
  session.openProject();
  if (invocation.options.dryRun && CMProperty::useSccCompliantTool() == 0) {
    printCommandPlan(invocation, {}, listArchive(session).commands);
    return ExitCode::AllDone;
  }
  Report report{.command = invocation.command.name};
  report.message =
      describeStates(session, selectAll(AllUnits::Every).units, StatesFrom::Archive, report.units);
  if (invocation.options.json) {
    printJson(report, console.out);
  } else if (report.message.empty()) {
    printStanding(report.units, console.out);
  }
  if (!report.message.empty()) session.door().notify(report.message, MessageLevel);
  if (wasInterrupted()) return ExitCode::Interrupted;
  return report.message.empty() ? ExitCode::AllDone : ExitCode::NothingDone;
}

}  // namespace veldra::host::cli
