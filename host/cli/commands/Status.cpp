#include <string>
#include <unordered_map>

#include "host/cli/ArchiveContent.h"
#include "host/cli/ProviderStatus.h"
#include "host/cli/Session.h"
#include "host/cli/UnitDescription.h"
#include "host/cli/UnitSelection.h"
#include "host/cli/printing/BytesAsText.h"
#include "host/cli/printing/Listing.h"
#include "host/cli/printing/Report.h"

namespace veldra::host::cli {

namespace {

std::vector<UnitRecord> describeUnits(const UnitList& units) {
  const CMHeaderReader headers;
  std::vector<UnitRecord> records;
  records.reserve(units.size());
  for (IUnit* unit : units) records.push_back(describeUnit(*unit, headers));
  return records;
}

/// Where a unit stands by its file alone.
std::string stateOf(const UnitRecord& unit) {
  if (unit.mode == "RO") return "checked in";
  if (unit.mode != "RW") return "unknown";
  // A tool that expands no keywords leaves no version either, so this may be a file of such a tool.
  return unit.version.empty() ? "writable" : "checked out";
}

/// The same by what the archive says; `file` is null for a unit that it does not hold.
std::string stateOf(const UnitRecord& unit, const UnitRecord* file, const std::string& user) {
  if (file == nullptr) return "not added";
  if (unit.mode == "RW") return "checked out";
  // A lock without a writable file: a command has been interrupted between the two.
  return file->locker == user && !user.empty() ? "left over" : "checked in";
}

/// The archive knows better who holds a file and which revision is the newest.
void takeFromArchive(const std::vector<UnitRecord>& files, const std::string& user,
                     std::vector<UnitRecord>& units) {
  std::unordered_map<std::string, const UnitRecord*> byPath;
  for (const UnitRecord& file : files) byPath.emplace(file.path, &file);
  for (UnitRecord& unit : units) {
    const auto at = byPath.find(unit.path);
    unit.state = stateOf(unit, at != byPath.end() ? at->second : nullptr, user);
    if (at == byPath.end()) continue;
    unit.version = at->second->version;
    unit.locker = at->second->locker;
  }
}

}  // namespace

ExitCode runStatus(const Invocation& invocation) {
  Console& console = invocation.console;
  Session session(invocation);
  if (invocation.options.update) {
    session.openProject();
  } else {
    session.openToLook();
  }
  const UnitList units = selectAll(AllUnits::Every).units;
  Report report{.command = invocation.command.name, .units = describeUnits(units)};
  for (UnitRecord& unit : report.units) unit.state = stateOf(unit);
  if (invocation.options.update) {
    const ArchiveContent content = listArchive(session);
    if (content.failure.empty()) {
      takeFromArchive(content.files, session.host().environment().omGetCurrentUser(), report.units);
    }
    report.message = content.failure;
  }
  if (report.message.empty()) {
    report.message = takeFromProvider(session, units, report.units).value_or("");
  }
  if (invocation.options.json) {
    printJson(report, console.out);
  } else {
    printListing(report.units, console.out);
  }
  if (!report.message.empty()) console.err << linesForPeople(report.message) << '\n';
  if (wasInterrupted()) return ExitCode::Interrupted;
  return report.message.empty() ? ExitCode::AllDone : ExitCode::SomeFailed;
}

}  // namespace veldra::host::cli
