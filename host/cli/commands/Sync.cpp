#include <algorithm>

#include "cm/core/CMArchiveItem.h"
#include "cm/core/CMAskOnCheckoutGuard.h"
#include "cm/ui/logic/HostTexts.h"
#include "cm/ui/logic/synchronize/SyncCommand.h"
#include "cm/ui/logic/synchronize/SyncListing.h"
#include "cm/ui/logic/synchronize/SyncPossible.h"
#include "cm/ui/logic/synchronize/SyncSettings.h"
#include "host/cli/ArchiveContent.h"
#include "host/cli/CommandPlan.h"
#include "host/cli/Session.h"
#include "host/cli/UnitDescription.h"
#include "host/cli/UnitOutcome.h"
#include "host/cli/UnitSelection.h"
#include "host/cli/printing/BytesAsText.h"
#include "host/cli/printing/FailureListing.h"
#include "host/cli/printing/Listing.h"
#include "host/cli/printing/Report.h"

namespace veldra::host::cli {

namespace {

using Json = nlohmann::ordered_json;

constexpr char Everything[] = "all";

const char* wordFor(SyncStatus status) {
  switch (status) {
    case SyncStatus::NewInArchive:
      return "new in the archive";
    case SyncStatus::ArchiveAhead:
      return "newer in the archive";
    default:
      return "changed here";
  }
}

/// One unit or file of the archive that differs.
struct Difference {
  std::string path;
  std::string type;
  std::string here;     ///< The version in the model; empty without one.
  std::string archive;  ///< The version in the archive; empty where nobody tells.
  std::string access;   ///< "RO", "RW", "U" or empty.
  SyncStatus status;
};

std::vector<Difference> differences(const SyncListing& listing) {
  std::vector<Difference> all;
  for (std::size_t row = 0; row < listing.size(); ++row) {
    const CMArchiveItem& item = listing.item(row);
    const UnitRecord record = describeItem(item);
    all.push_back({record.path, listing.cell(row, SyncColumn::Type),
                   listing.comparison()->unitVersion(item.getLoadedUnit()), item.getVersion(),
                   listing.cell(row, SyncColumn::Access), listing.status(row)});
  }
  return all;
}

/// What was to be taken over, and what became of it.
struct Taking {
  std::vector<UnitRecord> records;
  std::string message;
};

class Synchronization {
 public:
  explicit Synchronization(Session& session) : m_session(session) {}

  /// Throws when the archive cannot be listed.
  void list() {
    const std::size_t before = m_session.progress().traces().size();
    DiagnosticList diagnostics;
    const bool isListed = m_listing.list(SyncSettings::read().label, diagnostics);
    if (m_session.options().dryRun) return;
    const std::string why =
        isListed && usesProvider() ? "" : whyNotListed(m_session, before, diagnostics);
    if (!isListed || !why.empty()) {
      throw CommandError(ExitCode::NothingDone,
                         why.empty() ? "The archive cannot be listed." : why);
    }
    m_listing.fill();
    m_listing.sort(SyncColumn::Name);
  }

  Taking take(const std::vector<std::string>& names) {
    Taking taking;
    const std::vector<int> rows = chosenRows(names, taking);
    CMArchiveItemList items = m_listing.itemsOf(rows);
    for (const CMArchiveItem* item : items) taking.records.push_back(describeItem(*item));
    if (items.empty()) return taking;
    // What the user has named may be overwritten; a copy is kept.
    const CMAskOnCheckoutGuard mayOverwrite("yestoall");
    const std::size_t before = m_session.progress().traces().size();
    DiagnosticList diagnostics;
    takeOver(items, SyncSettings::read().labelInUse(), diagnostics);
    const std::vector<UnitTrace>& traces = m_session.progress().traces();
    std::size_t index = taking.records.size() - items.size();
    for (const CMArchiveItem* item : items) {
      applyResult(*item, {traces.begin() + static_cast<std::ptrdiff_t>(before), traces.end()},
                  diagnostics, taking.records[index++]);
    }
    taking.message = generalMessage(diagnostics, traces);
    return taking;
  }

  const SyncListing& listing() const { return m_listing; }

 private:
  bool usesProvider() const {
    return m_listing.comparison() != nullptr && m_listing.comparison()->usesProvider();
  }

  std::vector<int> chosenRows(const std::vector<std::string>& names, Taking& taking) {
    std::vector<int> rows;
    for (std::size_t row = 0; row < m_listing.size(); ++row) {
      const std::string path = describeItem(m_listing.item(row)).path;
      const bool isNamed = std::ranges::find(names, path) != names.end() ||
                           std::ranges::find(names, Everything) != names.end();
      if (isNamed || isUnitNamed(row, names)) rows.push_back(static_cast<int>(row));
    }
    for (const std::string& name : names) noteUnknown(name, taking);
    return rows;
  }

  bool isUnitNamed(std::size_t row, const std::vector<std::string>& names) {
    const IUnit* const unit = m_listing.item(row).getLoadedUnit();
    if (unit == nullptr) return false;
    return std::ranges::any_of(names, [&](const std::string& name) {
      const UnitCore* const named = unitNamed(m_session.project(), name);
      return named != nullptr && &named->unit() == unit;
    });
  }

  /// A unit that is in step needs nothing; what is no unit at all is told.
  void noteUnknown(const std::string& name, Taking& taking) {
    if (name == Everything || unitNamed(m_session.project(), name) != nullptr) return;
    for (std::size_t row = 0; row < m_listing.size(); ++row) {
      if (describeItem(m_listing.item(row)).path == name) return;
    }
    UnitRecord record{.path = name, .mode = "U"};
    record.result = UnitResult::Unknown;
    record.message =
        "Neither the model nor the archive has it. \"veldra-cm sync\" lists what differs.";
    taking.records.push_back(std::move(record));
  }

  static void applyResult(const CMArchiveItem& item, const std::vector<UnitTrace>& traces,
                          const DiagnosticList& diagnostics, UnitRecord& record) {
    const auto at = std::ranges::find(traces, item.getFileNameWithPath(), &UnitTrace::file);
    if (at == traces.end()) return applyAbsence(wasInterrupted(), {}, record);
    applyTrace(*at, "CheckOutFromArchive", diagnostics, record);
  }

  Session& m_session;
  SyncListing m_listing;
};

void print(const std::vector<Difference>& all, std::ostream& out) {
  if (all.empty()) return;
  std::vector<std::vector<std::string>> rows{
      {"STATE", "ACCESS", "HERE", "ARCHIVE", "TYPE", "PATH"}};
  for (const Difference& one : all) {
    rows.push_back({wordFor(one.status), one.access, textForPeople(one.here),
                    textForPeople(one.archive), textForPeople(one.type), textForPeople(one.path)});
  }
  printTable(rows, out);
}

Json documentOf(const std::vector<Difference>& all, const Taking* taking) {
  Json document;
  document["command"] = "sync";
  document["units"] = Json::array();
  for (const Difference& one : all) {
    Json unit;
    unit["path"] = jsonText(one.path);
    unit["type"] = jsonText(one.type);
    unit["version"] = jsonText(one.here);
    unit["archiveVersion"] = jsonText(one.archive);
    unit["mode"] = one.access;
    unit["state"] = wordFor(one.status);
    document["units"].push_back(std::move(unit));
  }
  if (taking == nullptr) return document;
  document["taken"] = Json::array();
  for (const UnitRecord& record : taking->records) {
    Json unit;
    unit["path"] = jsonText(record.path);
    unit["result"] = resultWord(record.result);
    unit["message"] = jsonText(record.message);
    document["taken"].push_back(std::move(unit));
  }
  return document;
}

void printTaking(const Taking& taking, Console& console) {
  FailureListing failures(console.err);
  for (const UnitRecord& record : taking.records) {
    if (record.result == UnitResult::Done) {
      console.out << "taken over  " << textForPeople(record.path) << '\n';
    } else {
      failures.add(record);
    }
  }
  if (!taking.message.empty()) console.err << linesForPeople(taking.message) << '\n';
}

bool isNothingTaken(const Taking& taking) {
  return !taking.records.empty() &&
         std::ranges::none_of(taking.records, [](const UnitRecord& record) {
           return record.result == UnitResult::Done;
         });
}

void checkUsage(const Options& options) {
  if (options.take == options.units.empty()) {
    throw CommandError(ExitCode::WrongUsage, options.take
                                                 ? "Name the units to take over, or \"all\"."
                                                 : "Units are named with --take only.");
  }
}

void checkPossible() {
  const std::optional<int> objection = objectionToSynchronizing();
  if (objection) throw CommandError(ExitCode::NothingDone, dialogText(*objection));
}

}  // namespace

ExitCode runSync(const Invocation& invocation) {
  const Options& options = invocation.options;
  Console& console = invocation.console;
  checkUsage(options);
  Session session(invocation);
  session.openProject();
  checkPossible();
  Synchronization sync(session);
  sync.list();
  if (options.dryRun) {
    const std::vector<UnitTrace>& traces = session.progress().traces();
    if (!traces.empty()) printCommandPlan(invocation, {}, traces.front().commands);
    return ExitCode::AllDone;
  }
  Taking taking;
  if (options.take) {
    taking = sync.take(options.units);
    session.save(false);
    if (!options.json) printTaking(taking, console);
    sync.list();
  }
  const std::vector<Difference> all = differences(sync.listing());
  if (options.json) {
    printJson(documentOf(all, options.take ? &taking : nullptr), console.out);
  } else {
    print(all, console.out);
  }
  if (wasInterrupted()) return ExitCode::Interrupted;
  if (isNothingTaken(taking)) return ExitCode::NothingDone;
  return all.empty() ? ExitCode::AllDone : ExitCode::SomeFailed;
}

}  // namespace veldra::host::cli
