// Running CM commands from the window.

#include <QMenu>
#include <QStatusBar>
#include <QTreeView>

#include "cm/core/CMArchive.h"
#include "cm/core/CMTraitFacade.h"
#include "cm/host/IPN.h"
#include "cm/templates/CMProperty.h"
#include "cm/ui/CCMDialog.h"
#include "host/desktop/Text.h"
#include "host/desktop/commands/CommandRun.h"
#include "host/desktop/logic/SettingsTable.h"
#include "host/desktop/window/ArchiveChoice.h"
#include "host/desktop/window/CommandDialog.h"
#include "host/desktop/window/CommandTexts.h"
#include "host/desktop/window/ConnectDialog.h"
#include "host/desktop/window/MainWindow.h"
#include "host/desktop/window/SettingsDialog.h"
#include "host/desktop/window/UnitEditor.h"
#include "host/model/PathNames.h"

namespace veldra::host::desktop {
namespace {

// The text in which the module asks the same.
constexpr int RefreshQuestion = 46560;

}  // namespace

void MainWindow::runCommand(const WindowCommand& row) {
  Project* project = m_session.project();
  if (!project || m_session.work().isWorking()) return;
  m_editor->commit();
  const UnitList alone = selectedUnits(false);
  const UnitList all = selectedUnits(true);
  if (all.empty()) return;
  QStringList names;
  for (const OutlineNode* node : selectedNodes()) names << shown(node->name);
  CommandOptions choice;
  if (row.command != DialogCommand::History && row.command != DialogCommand::Properties) {
    CommandDialog dialog(row, names, all.size() > alone.size(), m_lastComment, this);
    if (dialog.exec() != QDialog::Accepted) return;
    choice = dialog.choice();
  }
  const UnitList& units = choice.withDescendants ? all : alone;
  if (row.asksComment) m_lastComment = shown(choice.comment);
  if (row.savesFirst && m_session.hasUnsaved() && !m_session.save()) return;
  if (row.losesChanges && !mayLoseChanges(units)) return;
  const CommandReport report =
      veldra::host::desktop::runCommand(row, units, choice, m_session.work().results());
  if (report.isFine()) m_lastComment.clear();
  if (m_archive.isKnown() && row.changesArchive) {
    listArchive();
  }
  afterWork();
  tellReport(report, commandName(row));
}

bool MainWindow::mayLoseChanges(const UnitList& units) {
  const bool isUnsaved = std::ranges::any_of(units, [](IUnit* unit) {
    const UnitCore* core = UnitCore::of(unit);
    return core && core->isModified();
  });
  if (!isUnsaved) return true;
  switch (m_session.questions().ask(
      {.text = tr("Some of the units have changes that are not saved yet. Save them first?"),
       .icon = QMessageBox::Warning,
       .buttons = QMessageBox::Save | QMessageBox::Cancel,
       .preset = QMessageBox::Save})) {
    case QMessageBox::Save:
      return m_session.save();
    default:
      return false;
  }
}

void MainWindow::afterWork() {
  if (Project* project = m_session.project()) m_disk.remember(*project);
  m_editor->reload();
  refresh();
}

void MainWindow::tellReport(const CommandReport& report, const QString& operation) {
  if (!report.remarks.empty()) m_session.questions().ask({.text = shown(report.remarks)});
  if (report.isFine()) {
    statusBar()->showMessage(
        tr("%1: %n unit(s) done.", nullptr, static_cast<int>(report.done)).arg(operation), 8000);
    return;
  }
  QString text;
  QStringList paths;
  for (const std::string& message : report.messages) text += shown(message) + "\n";
  const std::string root = m_session.project()->getProjectDirectory();
  for (const UnitResult& failure : report.failures) {
    std::string path = failure.file;
    if (isInside(root, path)) path.erase(0, std::min(root.size() + 1, path.size()));
    paths << shown(path);
    text += shown(path + ": " + reasonOf(failure)) + "\n";
  }
  const int failed = static_cast<int>(report.failures.size());
  const QString summary =
      failed > 0 ? tr("%1: %n unit(s) came to nothing.", nullptr, failed).arg(operation)
                 : tr("%1 came to nothing.").arg(operation);
  const bool isShort = text.count('\n') <= 2;
  const auto answer = m_session.questions().ask(
      {.text = isShort ? summary + "\n\n" + text.trimmed() : summary,
       .details = isShort ? QString() : text,
       .icon = QMessageBox::Warning,
       .buttons = failed > 0 ? QMessageBox::Ok | QMessageBox::Retry : QMessageBox::Ok,
       .preset = QMessageBox::Ok,
       .retryText = tr("&Select Them")});
  if (answer == QMessageBox::Retry) selectUnits(paths);
}

void MainWindow::connectProject() {
  Project* project = m_session.project();
  if (!project) return;
  m_editor->commit();
  if (project->isReadOnly()) {
    m_session.questions().ask(
        {.text = tr("The project file is read-only, so its archive cannot be changed. Check the "
                    "project out first."),
         .icon = QMessageBox::Warning});
    return;
  }
  PropertyLayers& layers = m_session.host().properties();
  ConnectDialog dialog(layers, SettingsTable(layers, project).tool(),
                       shown(CMArchive::getMainArchive()), this);
  if (dialog.exec() != QDialog::Accepted) return;
  const std::string tool = dialog.choice().tool();
  layers.setInProject({IPN::CM, IPN::General, IPN::CMTool}, tool);
  layers.setInProject({IPN::CM, tool, IPN::CMArchive}, bytesOf(dialog.choice().archive()));
  connectNow();
}

void MainWindow::connectNow() {
  // The connection takes the project's file as it is on the disk.
  if (!m_session.save()) return;
  const CommandReport report = connectToArchive(*m_session.project(), m_session.work().results());
  m_session.save();
  if (report.isFine()) listArchive();
  showProject();
  if (report.isFine()) {
    statusBar()->showMessage(tr("Connected to the archive."));
  } else {
    tellReport(report, tr("Connect"));
  }
}

void MainWindow::openDialog() {
  m_editor->commit();
  // The tool takes the files as they are on the disk.
  if (!m_session.project() || !m_session.save()) return;
  CCMDialog::DoPopupCmDialog(this);
  afterWork();
}

CommandReport MainWindow::listArchive() {
  // A long listing would push what the user wants to read out of sight.
  m_session.output().setQuiet(true);
  CommandReport report = m_archive.refresh(*m_session.project(), m_session.work().results());
  m_session.output().setQuiet(false);
  return report;
}

void MainWindow::refreshStatus() {
  Project* project = m_session.project();
  if (!project) return;
  lookAtDisk();
  if (CMProperty::useSccCompliantTool() != 0) {
    // Whatever is set for the opening of projects: this was asked for.
    refreshProviderStatus();
  } else if (!CMArchive::getMainArchive().empty()) {
    const CommandReport report = listArchive();
    if (!report.isFine()) tellReport(report, tr("Refresh Status"));
  }
  refresh();
}

void MainWindow::refreshStatusAtOpening() {
  if (CMProperty::useSccCompliantTool() != 0) {
    // Reads the setting itself.
    CMTraitFacade::instance().RefreshCMStatus();
    refresh();
    return;
  }
  std::string when;
  CMProperty::getToolPropertyValue("RefreshCMStatusAtProjectOpenup", when);
  when = lowerCase(when);
  const bool isAsked = when == "ask user";
  if (isAsked) {
    const std::string question = m_session.host().messages().loadString(RefreshQuestion);
    const auto answer = m_session.questions().ask({.text = shown(question),
                                                   .icon = QMessageBox::Question,
                                                   .buttons = QMessageBox::Yes | QMessageBox::No});
    if (answer != QMessageBox::Yes) return;
  }
  if (isAsked || when == "yes") refreshStatus();
}

void MainWindow::editSettings() {
  m_editor->commit();
  const OutlineNode* node = currentNode();
  Project* project = m_session.project();
  SettingsDialog dialog(m_session, project && node ? unitOf(*project, *node) : nullptr, this);
  dialog.exec();
  showProject();
}

}  // namespace veldra::host::desktop
