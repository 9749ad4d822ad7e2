// The fetches for comparison and from the archive view.

#include "cm/core/BackEnd.h"
#include "cm/core/CMArchiveItem.h"
#include "cm/core/CMOutputer.h"
#include "cm/core/UnitReload.h"
#include "cm/host/IUserMessages.h"
#include "cm/host/LogTrace.h"
#include "cm/host/MessageIds.h"
#include "cm/scc/ArchiveUnits.h"
#include "cm/scc/FetchSCC.h"
#include "cm/scc/ProviderUnit.h"
#include "cm/scc/RecCheckOutFromArchiveSCC.h"
#include "cm/scc/RevisionFetch.h"
#include "cm/templates/CMProperty.h"

namespace veldra {

namespace {

constexpr char ForComparison[] = "Fetch for Comparison";

bool lacksTarget(const std::string& target, const std::string& file, DiagnosticList& diagnostics) {
  if (!target.empty()) return false;
  diagnostics.emplace_back(CMDiagnostic::Failed, formatMessage(MessageId::TargetMissing, {file}),
                           nullptr);
  return true;
}

/// A project without a provider has the same fetch through its tool.
bool fetchBesideByTool(IUnit& unit, const std::string& target, const UnitCall& call,
                       UnitReport& report) {
  const FetchToPlace fetch = [&](const std::string& /*file*/, UnitReport& way) {
    UnitList units{&unit};
    if (backEnds().tool->fetch({units, call.arguments, call.diagnostics}) == 1) return true;
    way.endsAs(UnitEnd::ToolFailed);
    return false;
  };
  return fetchBeside(unit.getFullFileName(), target, fetch, report);
}

/// Reloads the loaded unit of a file that was fetched to its place; other files stay on the disk.
bool reloadFetched(const CMArchiveItem& item, const std::string& file, UnitReport& report) {
  IUnit* const unit = unitOfItem(item);
  if (unit == nullptr || unit->asEmbededFile() != nullptr) return true;
  VELDRA_TRACE("Performing ATM for the file ", file);
  IUnit* const reloaded = loadItem(item, file);
  if (reloaded == nullptr) {
    const std::string message = formatMessage(MessageId::FileNotLoaded, {file});
    CMOutputer::reportLoadingErrror(message);
    report.endsAs(UnitEnd::NotReloaded, message);
    return false;
  }
  updateUnit(*reloaded,
             {.headerLine = UnitUpdate::Header,
              .modeLine = UnitUpdate::CMMode,
              .statusLine = UnitUpdate::Status},
             contextFor(reloaded, nullptr));
  return true;
}

int fetchItems(const char* operation, const CMArchiveItemList& items, const std::string& target) {
  const ReloadBracket bracket(target.empty() && !items.empty());
  const OverwriteQuestion question(target.empty());
  std::size_t position = 0;
  int result = items.empty() ? 0 : 1;
  for (const CMArchiveItem* item : items) {
    ++position;
    if (item == nullptr) continue;
    if (UnitReport::isCancelled()) return 0;
    const std::string file = item->getFullUnitFileName();
    UnitReport report(operation, position, items.size(), item->getFileNameWithPath());
    IUnit* const unit = unitOfItem(*item);
    if (unit != nullptr && !question.allows(*unit)) {
      report.endsAs(UnitEnd::Declined);
      continue;
    }
    const bool isDone = target.empty()
                            ? fetchInPlace(unit, file, report) && reloadFetched(*item, file, report)
                            : fetchBesideByProvider(unit, file, target, report);
    if (!isDone) result = 0;
  }
  return result;
}

}  // namespace

int FetchSCC::FetchForDiff(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics) {
  const std::string target = argumentValue(arguments, "targetDir");
  const bool usesProvider = CMProperty::getUseSCCtool() != 0;
  std::size_t position = 0;
  int result = units.empty() ? 0 : 1;
  for (IUnit* unit : units) {
    ++position;
    if (unit == nullptr) continue;
    const std::string file = unit->getFullFileName();
    if (lacksTarget(target, file, diagnostics)) return 0;
    UnitReport report(ForComparison, position, units.size(), file);
    const bool isDone =
        usesProvider ? fetchBesideByProvider(unit, file, target, report)
                     : fetchBesideByTool(*unit, target, {units, arguments, diagnostics}, report);
    if (!isDone) result = 0;
  }
  return result;
}

int FetchSCC::FetchForDiffFromArc(CMArchiveItemList& items, ArgumentList& arguments,
                                  DiagnosticList& diagnostics) {
  const std::string target = argumentValue(arguments, "targetDir");
  if (!items.empty() && lacksTarget(target, (*items.begin())->getFileName(), diagnostics)) {
    return 0;
  }
  return fetchItems(ForComparison, items, target);
}

int FetchSCC::FetchFromArchive(CMArchiveItemList& items, ArgumentList& arguments,
                               DiagnosticList& /*diagnostics*/) {
  return fetchItems("Fetch from Archive", items, argumentValue(arguments, "targetDir"));
}

int FetchSCC::RecFetchFromArchive(CMArchiveItemList& items, ArgumentList& arguments,
                                  DiagnosticList& /*diagnostics*/) {
  CMArchiveItemListWrapper all;
  addItemsBelow(items, all);
  return fetchItems("Recursive Fetch from Archive", all.list(),
                    argumentValue(arguments, "targetDir"));
}

}  // namespace veldra
