#include "host/cli/UnitStates.h"

#include <cstdint>
#include <unordered_map>

#include "cm/core/CMTraitFacade.h"
#include "cm/templates/CMProperty.h"
#include "host/cli/UnitDescription.h"

namespace veldra::host::cli {

namespace {

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

/// The same by what a provider says.
std::string stateOf(std::int32_t state) {
  if (state == CMState::Invalid) return "unknown";
  if ((state & CMState::Controlled) == 0) return "not added";
  if ((state & CMState::Deleted) != 0) return "deleted";
  if ((state & CMState::CheckedOut) != 0) return "checked out";
  if ((state & CMState::OutOther) != 0) return "checked out by another user";
  return (state & CMState::OutByUser) != 0 ? "checked out elsewhere" : "checked in";
}

/// Empty on success; otherwise why the provider could not be asked.
std::string takeFromProvider(Session& session, const UnitList& units,
                             std::vector<UnitRecord>& records) {
  std::vector<UnitStatus> status;
  if (CMTraitFacade::queryStatus(units, status) == 0 || status.size() != records.size()) {
    const std::string& told = session.door().lastText();
    return told.empty() ? "The source control provider does not tell where the units stand." : told;
  }
  for (std::size_t i = 0; i < records.size(); ++i) {
    records[i].state = stateOf(status[i].state);
    records[i].locker = status[i].holder;
  }
  return {};
}

}  // namespace

std::vector<UnitRecord> describeUnits(const UnitList& units) {
  const CMHeaderReader headers;
  std::vector<UnitRecord> records;
  records.reserve(units.size());
  for (IUnit* unit : units) records.push_back(describeUnit(*unit, headers));
  return records;
}

void takeFromArchive(Session& session, const ArchiveContent& content,
                     std::vector<UnitRecord>& records) {
  const std::string user = session.host().environment().omGetCurrentUser();
  std::unordered_map<std::string, const UnitRecord*> byPath;
  for (const UnitRecord& file : content.files) byPath.emplace(file.path, &file);
  for (UnitRecord& unit : records) {
    const auto at = byPath.find(unit.path);
    unit.state = stateOf(unit, at != byPath.end() ? at->second : nullptr, user);
    if (at == byPath.end()) continue;
    // The archive knows better who holds a file and which revision is the newest.
    unit.version = at->second->version;
    unit.locker = at->second->locker;
  }
}

std::string describeStates(Session& session, const UnitList& units, StatesFrom source,
                           std::vector<UnitRecord>& records) {
  records = describeUnits(units);
  for (UnitRecord& unit : records) unit.state = stateOf(unit);
  if (source == StatesFrom::Archive) {
    const ArchiveContent content = listArchive(session);
    if (!content.failure.empty()) return content.failure;
    takeFromArchive(session, content, records);
  }
  if (CMProperty::useSccCompliantTool() == 0) return {};
  return takeFromProvider(session, units, records);
}

}  // namespace veldra::host::cli
