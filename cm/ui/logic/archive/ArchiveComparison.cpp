#include "cm/ui/logic/archive/ArchiveComparison.h"

#include "cm/core/CMArchiveItem.h"
#include "cm/core/CMArguments.h"
#include "cm/core/CMFacade.h"
#include "cm/core/TextTools.h"
#include "cm/host/IEnvironment.h"
#include "cm/host/IPN.h"
#include "cm/host/IUserMessages.h"
#include "cm/host/MessageIds.h"
#include "cm/templates/CMProperty.h"
#include "cm/ui/logic/GuardedCall.h"
#include "cm/ui/logic/HostTexts.h"
#include "cm/ui/logic/LiveUnits.h"
#include "cm/ui/logic/compare/ComparedVersions.h"
#include "cm/ui/logic/compare/UnitComparison.h"

namespace veldra {

namespace {

constexpr CompareFlags ModelAndItem{.mergeBack = true, .cm2 = true};
constexpr CompareFlags ModelAndItems{.recursive = true, .mergeBack = true, .cm2 = true};
constexpr CompareFlags TwoVersions{.cm1 = true, .cm2 = true};
constexpr CompareFlags TwoTrees{.recursive = true, .cm1 = true, .cm2 = true};

}  // namespace

bool FetchFileFromArchive(CMArchiveItem& item, const std::string& label,
                          const std::string& directory, DiagnosticList& diagnostics) {
  const bool usesProvider = CMProperty::getUseSCCtool() != 0;
  if (!usesProvider && !fetchTakesTarget(IPN::CMFetchFromArchive)) {
    IUnit* const unit = item.getLoadedUnit();
    return unit != nullptr && fetchVersionInto(*unit, label, directory, diagnostics);
  }
  const std::string file = joinPath(directory, item.getFileName());
  CMTargetFile target(file);
  CMMode mode(CMMode::ReadOnly);
  CMLabel version(label);
  ArgumentList arguments{&target, &mode, &version};
  CMArchiveItemList items;
  items.addTail(&item);
  const ItemCommandFunction function =
      usesProvider ? &CMFacade::FetchForDiffFromArc : &CMFacade::FetchFromArchive;
  return bringsFile(
      file, [&] { return function(items, arguments, diagnostics); }, diagnostics);
}

bool RecFetchFileFromArchive(CMArchiveItem& item, const std::string& label,
                             const std::string& directory, DiagnosticList& diagnostics) {
  IUnit* const unit = item.getLoadedUnit();
  return unit != nullptr ? fetchTreeInto(*unit, label, directory, diagnostics)
                         : FetchFileFromArchive(item, label, directory, diagnostics);
}

bool ArchiveComparison::fetch(Fetch function, CMArchiveItem& item, const std::string& label,
                              const std::string& directory) {
  const ItemViewRunning running(m_view);
  return function(item, label, directory, m_diagnostics);
}

bool ArchiveComparison::OnArcVdDiff() {
  const CMArchiveItemList selected = m_view.CmSelectedItems();
  if (!allowsItems(selected, true)) return false;
  CMArchiveItem& item = **selected.begin();
  IUnit* unit = item.getLoadedUnit();
  if (unit == nullptr) {
    dialogWarning(formatMessage(MessageId::ItemNotLoaded, {item.getNameNShortPath(true)}));
    return false;
  }
  if (!canCompare(*unit)) return false;
  const auto options = m_view.askOptions(OptionRules::presets(comparisonRow(), {unit}));
  if (!options) return false;
  // The question may have stood open for long.
  unit = item.getLoadedUnit();
  if (unit == nullptr || !canFetchForComparison(*unit)) return false;
  warnAboutLabels({options->label});
  m_diagnostics.clear();
  const std::optional<ComparisonSides> sides = makeComparisonSides();
  if (!sides) return false;
  if (options->withDescendants) {
    if (!saveTreeInto(*unit, sides->first)) return false;
    return fetch(&RecFetchFileFromArchive, item, options->label, sides->second)
               ? launchComparison(sides->first, sides->second, ModelAndItems)
               : tellFailure(item);
  }
  if (!saveUnitInto(*unit, sides->first)) return false;
  const std::string first = fileInSide(*unit, *unit, sides->first);
  return fetch(&FetchFileFromArchive, item, options->label, sides->second)
             ? launchComparison(first, joinPath(sides->second, item.getFileName()), ModelAndItem)
             : tellFailure(item);
}

bool ArchiveComparison::OnArcCmDiff() {
  CMArchiveItemList selected = m_view.CmSelectedItems();
  if (!allowsItems(selected, true)) return false;
  CMArchiveItem& item = **selected.begin();
  if (CMProperty::getUseSCCtool() != 0) {
    // Its window shows which versions there are.
    ArgumentList noArguments;
    guardedCall(&CMFacade::HistoryArcView, selected, noArguments, m_diagnostics);
  }
  const std::optional<VersionChoice> choice = m_view.askVersions();
  if (!choice) return false;
  warnAboutLabels({choice->first, choice->second});
  m_diagnostics.clear();
  const std::optional<ComparisonSides> sides = makeComparisonSides();
  if (!sides) return false;
  const bool isTree = choice->withDescendants;
  const Fetch function = isTree ? &RecFetchFileFromArchive : &FetchFileFromArchive;
  if (!fetch(function, item, choice->first, sides->first) ||
      !fetch(function, item, choice->second, sides->second)) {
    return tellFailure(item);
  }
  const bool isStarted =
      isTree ? launchComparison(sides->first, sides->second, TwoTrees)
             : launchComparison(joinPath(sides->first, item.getFileName()),
                                joinPath(sides->second, item.getFileName()), TwoVersions);
  m_view.refreshItems();
  return isStarted;
}

bool ArchiveComparison::tellFailure(const CMArchiveItem& item) {
  std::string text = formatMessage(MessageId::VersionNotFetched, {item.getNameNShortPath(true)});
  for (const CMDiagnostic& diagnostic : m_diagnostics) {
    if (diagnostic.getStatus() == CMDiagnostic::Failed) text += '\n' + diagnostic.getMessage();
  }
  dialogError(text);
  return false;
}

}  // namespace veldra
