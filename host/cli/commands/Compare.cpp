#include <array>
#include <sstream>

#include "cm/host/IPN.h"
#include "cm/host/MessageIds.h"
#include "cm/tool/CommandText.h"
#include "cm/ui/logic/compare/ComparedVersions.h"
#include "cm/ui/logic/compare/UnitComparison.h"
#include "host/cli/CommandPlan.h"
#include "host/cli/Session.h"
#include "host/cli/UnitDescription.h"
#include "host/cli/UnitOutcome.h"
#include "host/cli/UnitSelection.h"
#include "host/cli/printing/BytesAsText.h"
#include "host/cli/printing/Report.h"
#include "host/compare/ComparisonReport.h"
#include "host/resources/MessageNumbers.h"

namespace veldra::host::cli {

namespace {

using compare::Difference;
using compare::FileComparison;
using Document = nlohmann::ordered_json;

/// Names in documents, in the order of the kinds.
constexpr std::array<const char*, 4> KindNames{"added", "removed", "moved", "changed"};
constexpr std::array<const char*, 3> ContentNames{"model", "text", "binary"};

void checkUsage(const Options& options) {
  if (options.labels.size() > 2) {
    throw CommandError(ExitCode::WrongUsage, "Give no more than two labels.");
  }
  for (const std::string& label : options.labels) {
    if (const std::optional<std::string> reason = unsafeInCommand(label)) {
      throw CommandError(
          ExitCode::WrongUsage,
          "The label contains " + *reason + ", which no command can carry. Give another one.");
    }
  }
}

IUnit& unitOf(Session& session, const std::string& name) {
  const UnitSelection selection = selectByName(session.project(), {name});
  if (selection.units.empty()) {
    throw CommandError(ExitCode::NothingDone, name + ": " + selection.unknown.front().message);
  }
  return *selection.units.front();
}

/// What stands on a side: "model", or the archive's version.
std::string sideName(const std::vector<std::string>& labels, std::size_t side) {
  if (labels.size() == 2) return labels[side];
  if (side == 0) return "model";
  return labels.empty() ? "archive" : labels.front();
}

void planComparison(const Invocation& invocation, IUnit& unit) {
  std::vector<std::string> sentences;
  const std::vector<std::string>& labels = invocation.options.labels;
  for (std::size_t side = labels.size() == 2 ? 0 : 1; side < 2; ++side) {
    const std::string version =
        labels.empty() ? "newest version" : "version " + sideName(labels, side);
    sentences.push_back("fetch the " + version + " of " + projectPath(unit) +
                        " into a temporary directory, and compare it");
  }
  printCommandPlan(invocation, sentences, {});
}

/// Why a version could not be had, in the words of the tool.
[[noreturn]] void refuse(Session& session, const IUnit& unit, const DiagnosticList& diagnostics) {
  std::string reason = generalMessage(diagnostics, {});
  const std::vector<UnitTrace>& traces = session.progress().traces();
  if (reason.empty() && !traces.empty()) reason = failureOf(traces.back(), IPN::CMFetch);
  if (reason.empty()) reason = session.door().lastText();
  if (reason.empty())
    reason = session.host().catalogue().format(MessageId::VersionNotFetched, {unit.getName()});
  throw CommandError(ExitCode::NothingDone, reason);
}

FileComparison compareSides(Session& session, IUnit& unit) {
  const std::vector<std::string>& labels = session.options().labels;
  const std::optional<ComparisonSides> sides = makeComparisonSides();
  if (!sides) throw CommandError(ExitCode::NothingDone, session.door().lastText());
  // The names are taken before the fetch, after which the unit may be another object.
  const std::string first = fileInSide(unit, unit, sides->first);
  const std::string second = fileInSide(unit, unit, sides->second);
  DiagnosticList diagnostics;
  const bool hasFirst = labels.size() == 2
                            ? fetchVersionInto(unit, labels[0], sides->first, diagnostics)
                            : saveUnitInto(unit, sides->first);
  const std::string newest = labels.empty() ? std::string() : labels.back();
  if (!hasFirst || !fetchVersionInto(unit, newest, sides->second, diagnostics)) {
    refuse(session, unit, diagnostics);
  }
  Result<FileComparison> comparison = FileComparison::read(first, second);
  if (!comparison) throw CommandError(ExitCode::NothingDone, comparison.error());
  return std::move(*comparison);
}

Document textOrNothing(const std::optional<std::string>& text) {
  return text ? jsonText(*text) : Document();
}

Document documentOf(const Difference& difference) {
  Document entry{{"kind", KindNames.at(static_cast<std::size_t>(difference.kind))},
                 {"type", jsonText(difference.type)},
                 {"element", jsonText(difference.path)}};
  if (difference.kind == compare::DifferenceKind::Changed) {
    entry["attribute"] = jsonText(compare::shownAttribute(difference.attribute));
  }
  if (difference.first || difference.second) {
    entry["first"] = textOrNothing(difference.first);
    entry["second"] = textOrNothing(difference.second);
  }
  return entry;
}

Document documentOf(const FileComparison& comparison) {
  Document list = Document::array();
  if (const compare::ModelComparison* const model = comparison.model()) {
    for (const Difference& difference : model->differences) list.push_back(documentOf(difference));
  }
  for (const compare::Hunk& hunk : comparison.hunks()) {
    list.push_back(Document{{"firstLine", hunk.first + 1},
                            {"firstCount", hunk.firstCount},
                            {"secondLine", hunk.second + 1},
                            {"secondCount", hunk.secondCount}});
  }
  return list;
}

void print(const Invocation& invocation, const std::string& path, const FileComparison& comparison,
           const MessageCatalogue& catalogue) {
  std::ostream& out = invocation.console.out;
  const std::vector<std::string>& labels = invocation.options.labels;
  if (invocation.options.json) {
    printJson(Document{{"command", invocation.command.name},
                       {"unit", jsonText(path)},
                       {"first", jsonText(sideName(labels, 0))},
                       {"second", jsonText(sideName(labels, 1))},
                       {"kind", ContentNames.at(static_cast<std::size_t>(comparison.kind()))},
                       {"same", comparison.isSame()},
                       {"differences", documentOf(comparison)}},
              out);
    return;
  }
  if (comparison.isSame()) {
    out << catalogue.text(MessageNumber::CompareSame) << '\n';
    return;
  }
  const compare::Texts texts = [&catalogue](int id, const std::vector<std::string>& values) {
    return catalogue.format(id, values);
  };
  std::ostringstream text;
  printComparison(comparison, texts, text);
  out << linesForPeople(text.str());
}

}  // namespace

ExitCode runCompare(const Invocation& invocation) {
  checkUsage(invocation.options);
  Session session(invocation);
  session.openProject();
  IUnit& unit = unitOf(session, *invocation.options.unit);
  const std::string path = projectPath(unit);
  if (!canCompare(unit)) return ExitCode::NothingDone;
  if (invocation.options.dryRun) {
    planComparison(invocation, unit);
    return ExitCode::AllDone;
  }
  if (!canFetchForComparison(unit)) return ExitCode::NothingDone;
  warnAboutLabels(invocation.options.labels);
  const FileComparison comparison = compareSides(session, unit);
  if (wasInterrupted()) return ExitCode::Interrupted;
  print(invocation, path, comparison, session.host().catalogue());
  return comparison.isSame() ? ExitCode::AllDone : ExitCode::SomeFailed;
}

}  // namespace veldra::host::cli
