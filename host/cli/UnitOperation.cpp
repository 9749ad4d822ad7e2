#include "host/cli/UnitOperation.h"

#include <algorithm>
#include <optional>
#include <string>
#include <unordered_map>
#include <unordered_set>

#include "cm/core/CMAskOnCheckoutGuard.h"
#include "cm/core/HybridRule.h"
#include "cm/templates/CMProperty.h"
#include "cm/tool/CommandText.h"
#include "cm/ui/logic/OptionRules.h"
#include "host/cli/ArchiveContent.h"
#include "host/cli/CallArguments.h"
#include "host/cli/Comment.h"
#include "host/cli/Session.h"
#include "host/cli/UnitDescription.h"
#include "host/cli/UnitOutcome.h"
#include "host/cli/printing/BytesAsText.h"
#include "host/cli/printing/FailureListing.h"
#include "host/cli/printing/Listing.h"
#include "host/cli/printing/Report.h"
#include "host/model/Reloading.h"

namespace veldra::host::cli {

namespace {

void checkUsage(const Options& options) {
  checkUnitOptions(options);
  if (const std::optional<std::string> reason = unsafeInCommand(options.label)) {
    throw CommandError(ExitCode::WrongUsage, "The label contains " + *reason +
                                                 ", which no command can carry. Give another one.");
  }
}

void checkComment(const UnitOperation& operation, const std::string& comment) {
  // What only this program has goes by the rules of a tool.
  const DialogCommand command =
      operation.row != nullptr ? operation.row->command : DialogCommand::AddToArchive;
  const std::string objection = OptionRules::commentObjection(command, comment);
  if (!objection.empty()) throw CommandError(ExitCode::WrongUsage, textForPeople(objection));
}

const char* templateOf(const UnitOperation& operation) {
  return operation.row != nullptr ? operation.row->templateProperty : operation.templateProperty;
}

/// Whether what a tool shows waits for its good end: the words of a failure are told with the unit,
/// and once. A provider shows things by itself.
bool holdsResultsBack(const Options& options) {
  return !options.verbose && CMProperty::useSccCompliantTool() == 0;
}

/// What the tool printed, without the echo of its command.
std::string resultText(const UnitTrace& trace) {
  const std::string echo = trace.commands.empty() ? "" : trace.commands.front() + "\n";
  return trace.output.starts_with(echo) ? trace.output.substr(echo.size()) : trace.output;
}

/// One command on units, from the selection to the report.
class UnitBatch {
 public:
  UnitBatch(Session& session, const UnitOperation& operation, std::string comment)
      : m_session(session),
        m_operation(operation),
        m_comment(std::move(comment)),
        m_rearranging(operation.plan, session.options().dryRun) {}

  void select() {
    const Options& options = m_session.options();
    m_selection = options.all ? selectAll(m_operation.all)
                              : selectByName(m_session.project(), options.units,
                                             options.recursive || m_operation.plan != nullptr);
    if (options.recursive) addContents();
    if (options.all && !options.dryRun) filterByArchive(m_selection.units);
    for (IUnit* unit : m_selection.units) addRecord(*unit);
    if (m_operation.plan) std::erase_if(m_selection.units, [this](IUnit* u) { return !admit(*u); });
  }

  bool isEmpty() const { return m_records.empty() && m_selection.unknown.empty(); }

  void run() {
    const Options& options = m_session.options();
    m_session.progress().setListener([this](const UnitTrace& trace) { tell(trace); });
    CallArguments arguments =
        callArguments({.mode = m_operation.mode,
                       .label = options.label,
                       .comment = m_comment,
                       .projectDirectory = m_session.project().getProjectDirectory()},
                      options.dryRun);
    const CMAskOnCheckoutGuard guard;
    UnitList units = m_selection.units;
    if (units.empty()) return;
    const bool usesProvider = CMProperty::useSccCompliantTool() != 0;
    // A provider runs no commands that could be held back.
    if (options.dryRun && usesProvider) return planAll();
    const CommandRow* const row = m_operation.row;
    // What lies in packages has been selected; a provider takes each unit and loads it anew.
    const bool isRecursive =
        options.recursive && row != nullptr && row->recursiveCall != nullptr && !usesProvider;
    const UnitOperation::Run run = row == nullptr ? m_operation.run
                                   : isRecursive  ? row->recursiveCall
                                                  : row->call;
    run(units, arguments.list(), m_diagnostics);
    if (isRecursive && m_operation.recursiveReloads && !options.dryRun) reload();
  }

  Report report(const std::string& command) {
    Report report{.command = command};
    const std::vector<UnitTrace> traces = m_session.progress().traces();
    report.message = generalMessage(m_diagnostics, traces);
    const std::string& reason =
        report.message.empty() ? m_session.door().lastText() : report.message;
    for (const UnitTrace& trace : traces) apply(trace);
    for (const auto& [file, index] : m_indexOf) {
      if (m_reached.contains(index)) continue;
      (void)m_rearranging.takeBack(file);
      applyAbsence(m_session.progress().isCancelled(), reason, m_records[index]);
    }
    describe();
    report.units = std::move(m_records);
    report.units.insert(report.units.end(), m_selection.unknown.begin(), m_selection.unknown.end());
    return report;
  }

 private:
  void addRecord(IUnit& unit) {
    m_indexOf.emplace(placeOf(unit), m_records.size());
    m_records.push_back(
        {.path = projectPath(unit), .name = unit.getName(), .type = unit.getTypeName()});
  }

  /// Packages get their content behind them, unless the tool does it with the package at once.
  void addContents() {
    UnitList whole;
    if (m_operation.wholePackage != nullptr) {
      std::erase_if(m_selection.units, [&](IUnit* unit) {
        const bool isWhole = m_operation.wholePackage(*UnitCore::of(unit));
        if (isWhole) whole.push_back(unit);
        return isWhole;
      });
    }
    const std::unordered_set<const IUnit*> added = addContent(m_operation.all, m_selection.units);
    if (!m_session.options().dryRun && !m_operation.plan) {
      UnitList kept(m_selection.units);
      std::erase_if(kept, [&](IUnit* unit) { return !added.contains(unit); });
      const std::unordered_set<IUnit*> asked(kept.begin(), kept.end());
      filterByArchive(kept);
      const std::unordered_set<IUnit*> left(kept.begin(), kept.end());
      std::erase_if(m_selection.units,
                    [&](IUnit* unit) { return asked.contains(unit) && !left.contains(unit); });
    }
    // What a package owns goes before the package itself.
    if (m_operation.plan) std::ranges::reverse(m_selection.units);
    m_selection.units.insert(m_selection.units.end(), whole.begin(), whole.end());
  }

  /// An archive that cannot be listed decides nothing; the tool itself will tell.
  void filterByArchive(UnitList& units) {
    if (units.empty()) return;
    const ArchiveContent content = listArchive(m_session);
    if (!content.failure.empty()) return;
    std::unordered_set<std::string> archived;
    for (const UnitRecord& file : content.files) archived.insert(file.path);
    keepByArchive(m_operation.archived, archived, units);
  }

  void planAll() {
    for (const IUnit* unit : m_selection.units) {
      const std::string file = placeOf(*unit);
      const std::size_t index = m_indexOf.at(file);
      m_reached.insert(index);
      makePlan({.file = file}, m_operation.lock, m_records[index]);
    }
  }

  bool admit(IUnit& unit) {
    const std::optional<std::string> reason = m_rearranging.admit(*UnitCore::of(&unit));
    if (!reason) return true;
    const std::size_t index = m_indexOf.at(placeOf(unit));
    m_records[index].result = UnitResult::Refused;
    m_records[index].message = *reason;
    m_reached.insert(index);
    return false;
  }

  /// Recursive operations leave the model as it was.
  void reload() {
    for (const UnitTrace& trace : m_session.progress().traces()) {
      UnitCore* const unit = m_session.project().unitByFile(trace.file);
      if (unit == nullptr || trace.end != UnitEnd::Done || reloadUnit(*unit) != nullptr) continue;
      unit->updateHeader();
      unit->updateMode({});
    }
  }

  /// For who watches: what the command is for, or a short line.
  void tell(const UnitTrace& trace) {
    const Options& options = m_session.options();
    const auto at = m_indexOf.find(trace.file);
    const bool isShown =
        trace.end == UnitEnd::Done && !options.json && !options.dryRun && at != m_indexOf.end();
    if (!isShown) return;
    std::ostream& out = m_session.console().out;
    if (m_operation.outputIsResult) {
      if (holdsResultsBack(options)) out << trace.output;
    } else {
      out << m_operation.pastAction << "  " << textForPeople(m_records[at->second].path) << '\n';
      printRemark(trace.words, out);
    }
    out << std::flush;
  }

  void apply(const UnitTrace& trace) {
    const auto at = m_indexOf.find(trace.file);
    if (at == m_indexOf.end()) return;
    UnitRecord& record = m_records[at->second];
    m_reached.insert(at->second);
    applyTrace(trace, templateOf(m_operation), m_diagnostics, record);
    if (m_session.options().dryRun) return makePlan(trace, m_operation.lock, record);
    if (m_operation.outputIsResult && record.result == UnitResult::Done) {
      record.message = resultText(trace);
    }
    if (m_operation.plan) rearrange(trace.file, record);
  }

  /// Lets the model follow what the tool did, or takes everything back.
  void rearrange(const std::string& file, UnitRecord& record) {
    if (record.result == UnitResult::Done) {
      m_nowAt[file] = m_rearranging.follow(file);
      return;
    }
    const std::string lost = m_rearranging.takeBack(file);
    if (record.result != UnitResult::Failed) return;
    record.message += '\n' + (lost.empty() ? "" : lost + '\n') +
                      archiveState(m_session, file, m_rearranging.targetOf(file));
  }

  /// Units may be other objects than before, so they are looked up by their files.
  void describe() {
    const CMHeaderReader headers;
    for (const auto& [file, index] : m_indexOf) {
      const auto moved = m_nowAt.find(file);
      UnitCore* const unit =
          m_session.project().unitByFile(moved != m_nowAt.end() ? moved->second : file);
      if (unit == nullptr) continue;
      UnitRecord described = describeUnit(unit->unit(), headers);
      UnitRecord& record = m_records[index];
      described.result = record.result;
      described.message = std::move(record.message);
      described.plan = std::move(record.plan);
      record = std::move(described);
    }
  }

  Session& m_session;
  const UnitOperation& m_operation;
  std::string m_comment;
  UnitSelection m_selection;
  std::vector<UnitRecord> m_records;
  std::unordered_map<std::string, std::size_t> m_indexOf;
  std::unordered_set<std::size_t> m_reached;
  DiagnosticList m_diagnostics;
  Rearranging m_rearranging;
  std::unordered_map<std::string, std::string> m_nowAt;  ///< Files that units have since.
};

/// `told` is what the user has read about the whole command already.
void print(const Report& report, const UnitOperation& operation, const Invocation& invocation,
           const std::string& told) {
  Console& console = invocation.console;
  if (invocation.options.json) {
    printJson(report, console.out);
    return;
  }
  std::size_t failures = 0;
  FailureListing listing(console.err);
  for (const UnitRecord& unit : report.units) {
    if (unit.result == UnitResult::Planned) printPlan(unit, operation.action, console.out);
    const bool isFine = unit.result == UnitResult::Planned || unit.result == UnitResult::Done;
    if (!isFine) ++failures;
    // One sentence for all of them says enough.
    const bool isTold = unit.message == report.message ||
                        (unit.result == UnitResult::Skipped && unit.message == told);
    if (!isFine && !isTold) listing.add(unit);
  }
  if (!report.message.empty()) console.err << linesForPeople(report.message) << '\n';
  if (failures > 0 && report.units.size() > 1) {
    console.err << failures << " of " << report.units.size() << " units came to nothing.\n";
  }
}

/// Units about which there is a remark had no change that a comment could go with.
bool isCommentUsed(const std::vector<UnitRecord>& units) {
  return std::ranges::any_of(units, [](const UnitRecord& unit) {
    return unit.result == UnitResult::Done && unit.message.empty();
  });
}

}  // namespace

ExitCode runUnitOperation(const Invocation& invocation, const UnitOperation& operation) {
  checkUsage(invocation.options);
  std::string comment = readComment(invocation.options, invocation.console.in);
  Session session(invocation, operation.outputIsResult ? WindowUse::Result : WindowUse::Quiet);
  session.openProject();
  const bool usesProvider = CMProperty::useSccCompliantTool() != 0;
  if (operation.byTool != nullptr && !usesProvider) return operation.byTool(session, invocation);
  if (operation.providerAdvice != nullptr && usesProvider) {
    throw CommandError(ExitCode::NothingDone, operation.providerAdvice);
  }
  if (!invocation.options.label.empty() && usesProvider) {
    throw CommandError(
        ExitCode::NothingDone,
        "A source control provider knows no labels. Leave \"-l\" out; nothing was done.");
  }
  if (operation.outputIsResult && holdsResultsBack(invocation.options)) {
    session.setWindow(WindowUse::Quiet);
  }
  if ((invocation.command.options & OptionSet::Comment) != 0) offerLastComment(session, comment);
  checkComment(operation, comment);
  UnitBatch batch(session, operation, comment);
  batch.select();
  const bool isEmpty = batch.isEmpty();
  batch.run();
  const Report report = batch.report(invocation.command.name);
  session.save(false);
  print(report, operation, invocation, session.door().lastText());
  if (isEmpty) {
    invocation.console.err << "There is no unit to " << operation.action << ".\n";
    return ExitCode::AllDone;
  }
  const ExitCode code = wasInterrupted() ? ExitCode::Interrupted : exitCodeOf(report.units);
  const bool isUsed = operation.plan != nullptr || isCommentUsed(report.units);
  keepComment(session, comment, code == ExitCode::AllDone && isUsed);
  return code;
}

}  // namespace veldra::host::cli
