#include <QLineEdit>
#include <QMenu>
#include <QTreeView>

#include "cm/core/CMArchiveItem.h"
#include "cm/host/MessageIds.h"
#include "cm/ui/Icons.h"
#include "cm/ui/OptionWindows.h"
#include "cm/ui/RefillScope.h"
#include "cm/ui/archive/CCMArcCoDlg.h"
#include "cm/ui/logic/CommandRun.h"
#include "cm/ui/logic/FailureMessage.h"
#include "cm/ui/logic/HostTexts.h"
#include "cm/ui/logic/MainArchive.h"
#include "cm/ui/logic/ProviderOptions.h"
#include "cm/ui/logic/SelectionRules.h"
#include "cm/ui/logic/StatusRefresh.h"
#include "cm/ui/logic/UserDefinedCommand.h"
#include "cm/ui/logic/ViewState.h"
#include "cm/ui/logic/archive/ListArchive.h"
#include "cm/ui/logic/compare/UnitComparison.h"
#include "cm/ui/logic/synchronize/SyncPossible.h"
#include "cm/ui/logic/synchronize/SyncSettings.h"
#include "cm/ui/synchronize/CMSyncDlg.h"
#include "cm/ui/widgets/ButtonPanel.h"
#include "cm/ui/widgets/ProgressStrip.h"
#include "cm/ui/widgets/Text.h"
#include "cm/ui/widgets/WorkspaceData.h"

namespace veldra {

bool CCMDialog::runCommand(int controlId) {
  for (const CommandButton* button : m_panel->buttons()) {
    const ButtonRow& row = buttonTable()[static_cast<std::size_t>(button->command())];
    if (row.controlId != controlId) continue;
    if (button->isHidden() || !button->isEnabled() || isRunning()) return false;
    press(button->command());
    return true;
  }
  return false;
}

void CCMDialog::press(DialogCommand command) {
  runOnce(shown(ButtonRules::caption(command)), [this, command] { runPressed(command); });
}

void CCMDialog::runPressed(DialogCommand command) {
  const bool isView = command == DialogCommand::FlatView || command == DialogCommand::TreeView;
  if (isView) return setView(command == DialogCommand::FlatView);
  if (!allowsCommands()) return;
  switch (command) {
    case DialogCommand::ListArchive:
      return listArchive();
    case DialogCommand::Compare:
      UnitComparison(*this).OnVddiff();
      return;
    case DialogCommand::Synchronize:
      return synchronize();
    case DialogCommand::RefreshStatus:
      return refreshStatus();
    case DialogCommand::CheckOutBranch:
      return;  // The button is there for hosts, which do the work.
    default:
      break;
  }
  if (const CommandRow* const row = commandRow(command)) {
    CommandRun(*this).run(*row);
  } else {
    runUserCommand(command);
  }
}

void CCMDialog::runUserCommand(DialogCommand command) {
  const UnitList units = CmSelectedItems();
  m_data->isFrozen = true;
  holdInput(shown(ButtonRules::caption(command)));
  UserDefinedCommand::run(command, units);
  releaseInput();
}

void CCMDialog::RunUserDefCommandFromBrowser(const std::string& command, IUnit* unit) {
  if (!allowsAnother()) return;
  NewCmSelectedItem(unit);
  UserDefinedCommand::RunUserDefCommand(command, m_selection.alive());
  dropGoneUnits();
}

void CCMDialog::refreshStatus() {
  holdInput(shown(ButtonRules::caption(DialogCommand::RefreshStatus)));
  const bool isRead = StatusRefresh::run(m_data->units.alive());
  releaseInput();
  if (isRead) CmFillCI();
}

void CCMDialog::listArchive() {
  const QString caption = shown(ButtonRules::caption(DialogCommand::ListArchive));
  CMArchiveItemListWrapper items;
  DiagnosticList diagnostics;
  holdInput(caption);
  const bool isListed = listArchiveInto(items, {}, diagnostics);
  releaseInput();
  if (!isListed) {
    return showFailure(MessageId::CommandFailed + static_cast<int>(DialogCommand::ListArchive),
                       diagnostics);
  }
  CCMArcCoDlg(items.list(), this).exec();
  DoAfterOpRefresh();
}

void CCMDialog::synchronize() {
  if (!CMSyncDlg::canSynchronize(1)) {
    // The host's own request stays silent without a tool; who presses the button is told.
    const bool lacksTool = objectionToSynchronizing() == MessageId::NoCMToolSelected;
    if (lacksTool) dialogError(dialogText(MessageId::NoCMToolSelected));
    return;
  }
  const UnitList selected = CmSelectedItems();
  chooseMainArchive(selected);
  CMSyncDlg dialog(this);
  holdInput(shown(ButtonRules::caption(DialogCommand::Synchronize)));
  DiagnosticList diagnostics;
  const bool isListed = dialog.listFirst(SyncSettings::read().label, diagnostics);
  releaseInput();
  if (isListed) {
    dialog.exec();
  } else {
    showFailure(MessageId::CommandFailed + static_cast<int>(DialogCommand::Synchronize),
                diagnostics);
  }
  DoAfterOpRefresh();
}

std::optional<CommandOptions> CCMDialog::askOptions(const OptionPresets& presets) {
  return showOptionWindow(presets, this);
}

void CCMDialog::commandStarts(const CommandRow& row) {
  m_data->isFrozen = true;
  for (QTreeView* view : {m_tree, m_list}) view->viewport()->setUpdatesEnabled(false);
  m_panel->setCommandsEnabled(false);
  holdInput(shown(ButtonRules::caption(row.command)));
}

void CCMDialog::commandEnds() {
  releaseInput();
}

void CCMDialog::afterCommand() {
  for (QTreeView* view : {m_tree, m_list}) view->viewport()->setUpdatesEnabled(true);
  // A fault may have ended the command anywhere.
  dropGoneUnits();
  m_panel->refresh();
  if (m_isRefreshDue) refresh40001();
}

const BatchResults* CCMDialog::results() const {
  return &progressStrip().results();
}

void CCMDialog::dropGoneUnits() {
  m_data->isFrozen = false;
  if (!m_data->units.anyGone()) return;
  const RefillScope once(*this);
  updateList();
  sortItems();
}

void CCMDialog::showContextMenu(const QPoint& place) {
  QMenu menu(this);
  for (CommandButton* button : m_panel->buttons()) {
    if (button->isHidden()) continue;
    QAction* const action = menu.addAction(commandIcon(button->command()), button->text(), this,
                                           [this, button] { press(button->command()); });
    action->setShortcut(button->shortcut());
    action->setShortcutVisibleInContextMenu(true);
    action->setEnabled(button->isEnabled());
    const bool endsGroup = button->command() == DialogCommand::CheckOutBranch ||
                           button->command() == DialogCommand::RunTool ||
                           button->command() == DialogCommand::Properties ||
                           button->command() == DialogCommand::UserCommand4;
    if (endsGroup) menu.addSeparator();
  }
  menu.exec(visibleView()->viewport()->mapToGlobal(place));
}

}  // namespace veldra
