// Running CM commands from the window.

#include <QMenu>
#include <QStatusBar>
#include <QTreeView>
#include <algorithm>

#include "cm/core/CMArchive.h"
#include "cm/core/CMTraitFacade.h"
#include "cm/host/IPN.h"
#include "cm/templates/CMProperty.h"
#include "cm/ui/CCMDialog.h"
#include "cm/ui/CommandDoor.h"
#include "cm/ui/ControlIds.h"
#include "cm/ui/logic/OptionRules.h"
#include "cm/ui/logic/UnitTexts.h"
#include "cm/ui/widgets/FailureStrip.h"
#include "host/desktop/Text.h"
#include "host/desktop/commands/ArchiveCalls.h"
#include "host/desktop/logic/SettingsTable.h"
#include "host/desktop/window/ArchiveChoice.h"
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
  if (!m_session.project() || m_session.work().isWorking()) return;
  m_editor->commit();
  if (row.savesFirst && m_session.hasUnsaved() && !m_session.save()) return;
  if (row.losesChanges && !mayLoseChanges(selectedUnits(true))) return;
  BatchResults& results = m_session.work().results();
  const bool isDone = runCommandOn(controlIdOf(row.command), selectedUnits(false), this, &results);
  tellEnd(row, isDone);
  if (row.changesArchive) rememberOwnWork();
  if (m_archive.isKnown() && row.changesArchive) listArchive();
  afterWork();
}

void MainWindow::tellEnd(const WindowCommand& row, bool isDone) {
  const BatchResults& results = m_session.work().results();
  m_failedFiles = results.failedFiles();
  m_failures->tell(shown(OptionRules::commandTitle(row.command)), m_failedFiles.size());
  const auto done = std::ranges::count(results.all(), UnitEnd::Done, &UnitResult::end);
  if (!isDone || !m_failedFiles.empty()) return;
  statusBar()->showMessage(tr("%1: %n unit(s) done.", nullptr, static_cast<int>(done))
                               .arg(shown(OptionRules::commandTitle(row.command))),
                           8000);
}

void MainWindow::selectFailed() {
  QStringList paths;
  for (const std::string& file : m_failedFiles) {
    const UnitCore* unit = m_session.project()->unitByFile(file);
    if (unit) paths << shown(unit->relativeFileName());
  }
  selectUnits(paths);
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

void MainWindow::rememberOwnWork() {
  for (const UnitResult& result : m_session.work().results().all()) {
    if (result.end == UnitEnd::Done) m_disk.remember(result.file);
  }
}

void MainWindow::afterWork() {
  // What others did meanwhile comes in with it.
  Project* project = m_session.project();
  apply(project ? m_disk.look(*project) : DiskChange());
  m_session.work().discardInput();
}

void MainWindow::tellReport(const CommandReport& report, const QString& operation) {
  QString text;
  for (const std::string& message : report.messages) text += shown(message) + "\n";
  for (const UnitResult& failure : report.failures) {
    text += shownName(shortPathOf(failure.file)) + ": " + shown(reasonOf(failure)) + "\n";
  }
  m_session.questions().ask(
      {.text = tr("%1 came to nothing.").arg(operation) + "\n\n" + text.trimmed(),
       .icon = QMessageBox::Warning});
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
  // A provider asks by itself where the project is to be.
  if (CMProperty::useSccCompliantTool() != 0) return connectThroughProvider();
  PropertyLayers& layers = m_session.host().properties();
  ConnectDialog dialog(layers, SettingsTable(layers, project).tool(),
                       shown(CMArchive::getMainArchive()), this);
  if (dialog.exec() != QDialog::Accepted) return;
  const std::string tool = dialog.choice().tool();
  layers.setInProject({IPN::CM, IPN::General, IPN::CMTool}, tool);
  layers.setInProject({IPN::CM, tool, IPN::CMArchive}, bytesOf(dialog.choice().archive()));
  connectNow();
}

void MainWindow::connectThroughProvider() {
  if (!m_session.save()) return;
  const bool isConnected = runCommandOn(ControlId::Connect, {}, this);
  m_session.save();
  if (isConnected) refreshProviderStatus();
  showProject();
  afterWork();
  if (isConnected) statusBar()->showMessage(tr("Connected to the archive."));
}

void MainWindow::connectNow() {
  // The connection takes the project's file as it is on the disk.
  if (!m_session.save()) return;
  const CommandReport report = connectToArchive(*m_session.project(), m_session.work().results());
  m_session.save();
  if (report.isFine()) listArchive();
  showProject();
  afterWork();
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
  m_session.work().results().start();
  CCMDialog::DoPopupCmDialog(this);
  rememberOwnWork();
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
    project->startShowingCMStatus();
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
