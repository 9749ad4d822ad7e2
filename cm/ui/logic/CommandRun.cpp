#include "cm/ui/logic/CommandRun.h"

#include <algorithm>

#include "cm/core/CMArchive.h"
#include "cm/core/CMAskOnCheckoutGuard.h"
#include "cm/core/CMCoCiDisplayStatus.h"
#include "cm/core/CMFacade.h"
#include "cm/core/TextTools.h"
#include "cm/core/WorkspaceUnits.h"
#include "cm/host/Host.h"
#include "cm/host/IPN.h"
#include "cm/host/IUserMessages.h"
#include "cm/host/LogTrace.h"
#include "cm/host/MessageIds.h"
#include "cm/templates/CMProperty.h"
#include "cm/ui/logic/BackEndMode.h"
#include "cm/ui/logic/FailureMessage.h"
#include "cm/ui/logic/GuardedCall.h"
#include "cm/ui/logic/InformationFiles.h"
#include "cm/ui/logic/ProviderOptions.h"
#include "cm/ui/logic/RecursiveRun.h"
#include "cm/ui/logic/SelectionRules.h"
#include "cm/ui/logic/ViewState.h"

namespace veldra {

namespace {

/// The host's undo transaction around a command that changes the model.
class UndoScope {
 public:
  explicit UndoScope(bool isNeeded) {
    Host* const host = installedHost();
    m_undoer = isNeeded && host != nullptr ? host->undoer() : nullptr;
    if (m_undoer != nullptr) m_undoer->startTransaction(nullptr, 1);
  }
  UndoScope(const UndoScope&) = delete;
  UndoScope& operator=(const UndoScope&) = delete;
  ~UndoScope() {
    if (m_undoer != nullptr) m_undoer->endTransaction();
  }

 private:
  Undoer* m_undoer;
};

void traceIfAny(const char* line) {
  if (*line != '\0') VELDRA_TRACE(line);
}

void showError(int id) {
  notifyUserAndAsk(loadMessage(id), MessageBox::IconError);
}

/// A question with Yes, No and Cancel: nothing for Cancel.
std::optional<bool> askYesNo(int id) {
  const int answer =
      notifyUserAndAsk(loadMessage(id), MessageBox::YesNoCancel | MessageBox::IconQuestion);
  if (answer == MessageBox::AnswerYes) return true;
  if (answer == MessageBox::AnswerNo) return false;
  return std::nullopt;
}

bool skipsFetchWindow() {
  std::string asks;
  omGetEnvVar("General", "FetchWithDesc", asks, "");
  return !asks.empty() && !equalsNoCase(asks, "true");
}

}  // namespace

bool CommandRun::run(const CommandRow& row) {
  const CommandSide& side = BackEndMode::current().usesProvider ? row.provider : row.tool;
  if (!allowsSelection(side.selection, m_view.GetSelectedCount())) return false;
  traceIfAny(row.starting);
  m_completed = side.completed;
  bool succeeded = false;
  {
    // An answer for all units is meant for those of this command.
    const CMAskOnCheckoutGuard guard;
    const UndoScope undo(row.changesModel);
    succeeded = runInside(row);
  }
  if (succeeded) traceIfAny(m_completed);
  return succeeded;
}

bool CommandRun::runInside(const CommandRow& row) {
  m_selection.assign(m_view.CmSelectedItems());
  m_diagnostics.clear();
  CommandOptions options;
  if (!askFirst(row, options)) return false;
  const bool recursive = options.withDescendants && row.recursive != nullptr;
  const bool succeeded = recursive ? runRecursive(row, options) : runPlain(row, options);
  return finish(row, options, succeeded);
}

bool CommandRun::askFirst(const CommandRow& row, CommandOptions& options) {
  const BackEndMode mode = BackEndMode::current();
  if (mode.usesProvider && row.needsCompliance && CMProperty::useSccCompliantTool() == 0) {
    showError(MessageId::ProviderNotCompliant);
    return false;
  }
  if (row.command == DialogCommand::Connect && !allowsConnecting()) return false;
  const OptionWindow window = mode.usesProvider ? row.provider.window : row.tool.window;
  if (window == OptionWindow::None) return true;
  if (window == OptionWindow::Question) return askUndo(options);
  if (row.command == DialogCommand::Fetch && skipsFetchWindow()) return true;
  if (row.command == DialogCommand::AddToArchive && !askSubUnits(options)) return false;
  return askWindow(row, options);
}

bool CommandRun::askWindow(const CommandRow& row, CommandOptions& options) {
  OptionPresets presets = OptionRules::presets(row, m_selection.alive());
  presets.withDescendants = options.withDescendants;
  const std::optional<CommandOptions> chosen = m_view.askOptions(presets);
  if (!chosen) return false;
  // An answer that the window did not show still holds.
  const bool isAnswered = presets.withDescendants && !presets.offersDescendants;
  options = *chosen;
  options.withDescendants = chosen->withDescendants || isAnswered;
  return true;
}

bool CommandRun::askUndo(CommandOptions& options) {
  const UnitList units = m_selection.alive();
  if (InformationFiles::areOffered() && InformationFiles::areThere(units)) {
    const std::optional<bool> take = askYesNo(MessageId::UndoInformationFiles);
    if (!take) return false;
    options.withInformationFiles = *take;
  }
  const std::optional<bool> below = askYesNo(MessageId::UndoWithDescendants);
  if (!below) return false;
  options.withDescendants = *below;
  return true;
}

bool CommandRun::askSubUnits(CommandOptions& options) {
  if (!OptionRules::addsSubUnits()) return true;
  const std::optional<bool> take = askYesNo(MessageId::AddSubUnits);
  options.withDescendants = take.value_or(false);
  return take.has_value();
}

bool CommandRun::allowsConnecting() {
  std::string refusal;
  if (!ConnectingToVaultrixWithControlledFiles(refusal)) return true;
  notifyUserAndAsk(refusal, MessageBox::IconError);
  return false;
}

bool CommandRun::takeSelection(const CommandRow& row, const CommandOptions& options,
                               UnitList& units) {
  units = m_selection.alive();
  if (units.empty() && !m_selection.empty()) {
    notifyUserAndAsk(loadMessage(MessageId::SelectionGone), MessageBox::IconWarning);
    return false;
  }
  if (options.withInformationFiles) {
    // An undo asks about the first unit only.
    UnitList asked = units;
    if (row.command == DialogCommand::UndoCheckOut && !asked.empty()) asked.resize(1);
    InformationFiles::append(asked);
    units.insert(units.end(), asked.begin(), asked.end());
  }
  const bool takesAllFiles = options.withDescendants;
  if (takesAllFiles) units = withNestedFiles(units);
  CMFacade::removeDuplicatesFromItemList(units);
  return true;
}

bool CommandRun::runPlain(const CommandRow& row, const CommandOptions& options) {
  UnitList units;
  if (!takeSelection(row, options, units)) return false;
  if (!options.archive.empty()) CMArchive::setMainArchive(options.archive);
  return call(row, row.call, units, options);
}

bool CommandRun::runRecursive(const CommandRow& row, const CommandOptions& options) {
  UnitList units;
  if (!takeSelection(row, options, units)) return false;
  traceIfAny(row.recursive->starting);
  m_completed = row.recursive->completed;
  m_taken.assign(units);
  IUnit* const first = units.empty() ? nullptr : units.front();
  const bool usesProvider = CMProperty::getUseSCCtool() != 0;
  if (usesProvider && !makesProviderContextCurrent(first)) return false;
  return callRecursive(row, units, options);
}

/// What the command has loaded already is another object now, and is left alone. False when a fault
/// of the host ended it.
bool CommandRun::reloadBelow(const RecursiveVariant& variant) {
  if (variant.reloadStarting == nullptr) return true;
  traceIfAny(variant.reloadStarting);
  const auto reload = [this] {
    reloadFiles(m_taken.alive());
    return 1;
  };
  if (!guardedCall(reload, m_diagnostics)) return false;
  traceIfAny(variant.reloadCompleted);
  return true;
}

bool CommandRun::call(const CommandRow& row, UnitCommandFunction function, UnitList& units,
                      const CommandOptions& options) {
  const bool usesProvider = CMProperty::getUseSCCtool() != 0;
  CallArguments arguments = OptionRules::arguments(row, options);
  const RunningScope running(m_view, row);
  const std::optional<int> result =
      guardedCall([&] { return function(units, arguments.list(), m_diagnostics); }, m_diagnostics);
  // Operations of a provider answer 0 whatever came of them; they have told the user themselves.
  const bool tellsByResult = !usesProvider || row.command == DialogCommand::Connect;
  if (row.command == DialogCommand::Fetch) markSaveDue();
  return result && (*result != 0 || !tellsByResult);
}

bool CommandRun::callRecursive(const CommandRow& row, UnitList& units,
                               const CommandOptions& options) {
  const bool usesProvider = CMProperty::getUseSCCtool() != 0;
  if (row.command == DialogCommand::CheckOut && !usesProvider) {
    CallArguments arguments = OptionRules::arguments(row, options);
    const RunningScope running(m_view, row);
    return checkOutItems(units, arguments.list(), m_diagnostics);
  }
  if (row.command == DialogCommand::Fetch) return fetchRecursive(row, units, options);
  // A provider has its own way for a check-in alone; otherwise it gets every unit.
  const bool getsUnits = usesProvider && row.command != DialogCommand::CheckIn;
  return call(row, getsUnits ? row.call : row.recursiveCall, units, options);
}

bool CommandRun::fetchRecursive(const CommandRow& row, const UnitList& units,
                                const CommandOptions& options) {
  const bool takesApart =
      CMProperty::getProjectBool(IPN::General, "FetchStubSubUnitsSeparately", false);
  UnitList loaded;
  UnitList stubs;
  for (IUnit* unit : units) {
    const bool isApart = takesApart && (unit->getFlags() & UnitFlag::Stub) != 0;
    (isApart ? stubs : loaded).push_back(unit);
  }
  const LiveUnits live(stubs);
  const bool succeeded = loaded.empty() || call(row, row.recursiveCall, loaded, options);
  // The first fetch may have loaded what stood for others.
  stubs = live.alive();
  return (stubs.empty() || call(row, row.recursiveCall, stubs, options)) && succeeded;
}

/// Such as a check-in that found nothing changed: no failure, but not what was wanted.
void CommandRun::tellRemarks() const {
  const BatchResults* const results = m_view.results();
  const std::string remarks = results != nullptr ? results->remarks() : std::string();
  if (!remarks.empty()) notifyUserAndAsk(remarks, MessageBox::IconInformation);
}

void CommandRun::tellFailure(const CommandRow& row) {
  m_view.dropGoneUnits();
  showFailure(MessageId::CommandFailed + static_cast<int>(row.command), m_diagnostics);
}

/// What was typed is offered again as long as a unit is left that needs it.
void CommandRun::keepComment(const CommandRow& row, const CommandOptions& options,
                             bool succeeded) const {
  if ((row.parts & CallPart::Comment) == 0) return;
  const bool isAllDone =
      succeeded && std::ranges::none_of(m_diagnostics, [](const CMDiagnostic& diagnostic) {
        return diagnostic.getStatus() == CMDiagnostic::Failed;
      });
  ViewState::keepComment(row.command, isAllDone ? std::string() : options.comment);
}

bool CommandRun::finish(const CommandRow& row, const CommandOptions& options, bool succeeded) {
  if (const BatchResults* const results = m_view.results()) results->addFailures(m_diagnostics);
  keepComment(row, options, succeeded);
  if (!succeeded) {
    tellFailure(row);
    return false;
  }
  CMCoCiDisplayStatus(m_diagnostics,
                      loadMessage(MessageId::CommandResults + static_cast<int>(row.command)))
      .displayStatus();
  tellRemarks();
  const bool reloads = options.withDescendants && row.recursive != nullptr;
  if (reloads && !reloadBelow(*row.recursive)) {
    tellFailure(row);
    return false;
  }
  m_view.DoAfterOpRefresh();
  return true;
}

}  // namespace veldra
