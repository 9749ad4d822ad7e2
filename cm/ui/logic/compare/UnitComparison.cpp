#include "cm/ui/logic/compare/UnitComparison.h"

#include "cm/host/IPN.h"
#include "cm/host/IUserMessages.h"
#include "cm/host/MessageIds.h"
#include "cm/templates/CMProperty.h"
#include "cm/ui/ControlIds.h"
#include "cm/ui/logic/BackEndMode.h"
#include "cm/ui/logic/FailureMessage.h"
#include "cm/ui/logic/HostTexts.h"
#include "cm/ui/logic/LiveUnits.h"
#include "cm/ui/logic/ProviderOptions.h"
#include "cm/ui/logic/SelectionRules.h"
#include "cm/ui/logic/compare/ComparedVersions.h"

namespace veldra {

namespace {

constexpr CommandRow Row{
    .command = DialogCommand::Compare,
    .controlId = ControlId::Compare,
    .starting = "",
    .tool = {SelectionRule::OneAndOnlyOne, OptionWindow::Compare, ""},
    .provider = {SelectionRule::OneAndOnlyOne, OptionWindow::Compare, ""},
    .call = nullptr,
};

constexpr CompareFlags SingleUnit{.mergeBack = true, .cm1 = true, .cm2 = true};
// The model's side of a tree is not what the archive handed out.
constexpr CompareFlags UnitTree{.recursive = true, .mergeBack = true, .cm2 = true};

}  // namespace

const CommandRow& comparisonRow() {
  return Row;
}

bool canCompare(IUnit& unit) {
  if ((unit.getFlags() & UnitFlag::Stub) != 0) {
    dialogWarning(formatMessage(MessageId::StubNotCompared, {unit.getName(), unit.getTypeName()}));
    return false;
  }
  if (unit.asEmbededFile() != nullptr) {
    notifyUserAndAsk(
        formatMessage(MessageId::ControlledFileNotCompared, {IEmbededFile::FeatureName}),
        MessageBox::IconInformation);
    return false;
  }
  return true;
}

bool canFetchForComparison(IUnit& unit) {
  const BackEndMode mode = BackEndMode::current();
  if (mode.usesProvider) return opensProviderContext(unit);
  if (mode.isNoTool) dialogError(dialogText(MessageId::NoCMToolSelected));
  return !mode.isNoTool;
}

void warnAboutLabels(const std::vector<std::string>& labels) {
  if (CMProperty::getUseSCCtool() == 0) return;
  std::string ignored;
  for (const std::string& label : labels) {
    if (!label.empty()) ignored += (ignored.empty() ? "" : ", ") + label;
  }
  if (!ignored.empty()) {
    dialogWarning(formatMessage(MessageId::NewestVersionCompared, {ignored}));
  }
}

bool UnitComparison::OnVddiff() {
  if (!allowsSelection(SelectionRule::OneAndOnlyOne, m_view.GetSelectedCount())) return false;
  LiveUnits selection(m_view.CmSelectedItems());
  IUnit* unit = selection.at(0);
  if (unit == nullptr || !canCompare(*unit)) return false;
  const std::optional<CommandOptions> options =
      m_view.askOptions(OptionRules::presets(Row, {unit}));
  if (!options) return false;
  // The question may have stood open for long.
  unit = selection.at(0);
  if (unit == nullptr) {
    dialogWarning(dialogText(MessageId::SelectionGone));
    return false;
  }
  if (!canFetchForComparison(*unit)) return false;
  warnAboutLabels({options->label});
  return options->withDescendants ? OnRecFetch(*unit, options->label)
                                  : compareOne(*unit, options->label);
}

bool UnitComparison::compareOne(IUnit& unit, const std::string& label) {
  const std::optional<ComparisonSides> sides = makeComparisonSides();
  if (!sides || !saveUnitInto(unit, sides->first)) return false;
  const std::string first = fileInSide(unit, unit, sides->first);
  const std::string second = fileInSide(unit, unit, sides->second);
  bool isFetched = false;
  {
    const RunningScope running(m_view, Row);
    isFetched = fetchVersionInto(unit, label, sides->second, m_diagnostics);
  }
  m_view.dropGoneUnits();
  return isFetched ? launchComparison(first, second, SingleUnit) : tellFailure();
}

bool UnitComparison::OnRecFetch(IUnit& unit, const std::string& label) {
  const std::optional<ComparisonSides> sides = makeComparisonSides();
  if (!sides || !saveTreeInto(unit, sides->first)) return false;
  bool isFetched = false;
  {
    const RunningScope running(m_view, Row);
    isFetched = fetchTreeInto(unit, label, sides->second, m_diagnostics);
  }
  m_view.dropGoneUnits();
  return isFetched ? launchComparison(sides->first, sides->second, UnitTree) : tellFailure();
}

bool UnitComparison::tellFailure() {
  showFailure(MessageId::CommandFailed + static_cast<int>(Row.command), m_diagnostics);
  return false;
}

}  // namespace veldra
