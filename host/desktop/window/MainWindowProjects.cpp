// Opening, saving and leaving projects, and what others do to their files.

#include <QApplication>
#include <QFileDialog>
#include <QFileSystemWatcher>
#include <QLabel>
#include <QMenu>
#include <QSettings>
#include <QStackedWidget>
#include <QTreeView>
#include <filesystem>
#include <set>
#include <system_error>

#include "cm/core/CMArchive.h"
#include "cm/host/Host.h"
#include "host/desktop/Text.h"
#include "host/desktop/logic/NewUnit.h"
#include "host/desktop/logic/SettingsTable.h"
#include "host/desktop/window/EditorParts.h"
#include "host/desktop/window/MainWindow.h"
#include "host/desktop/window/NewProjectDialog.h"
#include "host/desktop/window/NewUnitDialog.h"
#include "host/desktop/window/UnitEditor.h"
#include "host/desktop/window/WelcomePage.h"
#include "host/model/PathNames.h"
#include "host/model/Reloading.h"

namespace veldra::host::desktop {

namespace {

/// In a title these three signs stand for the mark of unsaved work.
QString titleOf(const Project& project) {
  return shownName(project.getName()).replace("[*]", "[*][*]");
}

}  // namespace

bool MainWindow::openProject(const QString& directoryOrFile) {
  if (!mayLeave()) return false;
  const std::string place = bytesOf(directoryOrFile);
  m_editor->showUnit({});
  m_archive.forget();
  const bool isOpen = m_session.open(place);
  std::error_code unknown;
  if (isOpen) {
    m_recent.opened(m_session.project()->getProjectDirectory());
  } else if (!std::filesystem::exists(place, unknown)) {
    m_recent.remove(place);
  }
  showRecent();
  showProject();
  if (isOpen) refreshStatusAtOpening();
  return isOpen;
}

void MainWindow::chooseProject() {
  const QString start = m_recent.all().empty() ? QString() : shown(m_recent.all().front());
  const QString file =
      QFileDialog::getOpenFileName(this, tr("Open Project"), start, tr("Projects (*.vdy *.vdr)"));
  if (!file.isEmpty()) openProject(file);
}

void MainWindow::makeProject() {
  if (!mayLeave()) return;
  NewProjectDialog dialog(m_session.host().properties(), m_session.questions(), this);
  if (dialog.exec() != QDialog::Accepted) return;
  if (openProject(dialog.projectFile()) && dialog.wantsConnection()) connectNow();
}

void MainWindow::closeProject() {
  if (!mayLeave()) return;
  m_editor->showUnit({});
  m_archive.forget();
  m_session.close();
  showProject();
}

void MainWindow::showProject() {
  Project* project = m_session.project();
  const std::string tool = SettingsTable(m_session.host().properties(), project).tool();
  const std::string archive = project ? CMArchive::getMainArchive() : std::string();
  m_editor->reload();
  watchFolders();
  m_hint->setVisible(project && archive.empty());
  m_pages->setCurrentIndex(project ? 1 : 0);
  setWindowTitle((project ? titleOf(*project) + "[*] — " : QString("[*]")) +
                 QCoreApplication::applicationName());
  showTool(project ? shownName(tool) + (archive.empty() ? "" : "  ·  ") + shownName(archive)
                   : QString());
  refresh();
  if (project && !currentNode()) selectUnits({"."});
}

void MainWindow::showTool(const QString& text) {
  // An address may be longer than the window is wide.
  constexpr int MostPixels = 480;
  m_toolLabel->setText(fontMetrics().elidedText(text, Qt::ElideMiddle, MostPixels));
  m_toolLabel->setToolTip(text.isEmpty() ? QString() : plainTip(text));
}

void MainWindow::showRecent() {
  QStringList list;
  m_recentMenu->clear();
  for (const std::string& project : m_recent.all()) {
    const QString path = shown(project);
    list << path;
    QAction* action = m_recentMenu->addAction(QString("&%1  %2").arg(
        QString::number(list.size()), shownName(project).replace('&', "&&")));
    connect(action, &QAction::triggered, this, [this, path] { openProject(path); });
  }
  m_recentMenu->setEnabled(!list.isEmpty());
  m_welcome->showRecent(m_recent.all());
  QSettings().setValue("recent", list);
}

bool MainWindow::mayLeave() {
  m_editor->commit();
  if (!m_session.hasUnsaved()) return true;
  switch (m_session.questions().ask(
      {.text = tr("The project has changes that are not saved yet. Save them?"),
       .icon = QMessageBox::Warning,
       .buttons = QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel,
       .preset = QMessageBox::Save})) {
    case QMessageBox::Save:
      return m_session.save();
    case QMessageBox::Discard:
      return true;
    default:
      return false;
  }
}

void MainWindow::save() {
  m_editor->commit();
  m_session.save();
  refresh();
}

void MainWindow::undoChange() {
  Project* project = m_session.project();
  if (!project) return;
  project->undo().undo();
  m_editor->reload();
  refresh();
}

void MainWindow::makeUnit() {
  Project* project = m_session.project();
  const OutlineNode* node = currentNode();
  NewUnitDialog dialog(this);
  if (!project || dialog.exec() != QDialog::Accepted) return;
  const Folder& folder = folderFor(*project, node ? unitOf(*project, *node) : nullptr);
  std::string error;
  UnitCore* made = createUnit(*project, folder, dialog.unitType(), bytesOf(dialog.name()), error);
  if (!made) {
    m_session.questions().ask({.text = shown(error), .icon = QMessageBox::Warning});
    return;
  }
  const QString path = shown(made->relativeFileName());
  watchFolders();
  refresh();
  selectUnits({path});
}

// --- the disk ---

void MainWindow::watchFolders() {
  if (!m_watcher->directories().isEmpty()) m_watcher->removePaths(m_watcher->directories());
  Project* project = m_session.project();
  if (!project) return;
  std::set<QString> folders;
  for (const UnitCore* unit : project->files()) {
    folders.insert(shown(unit->record().folder->path));
  }
  m_watcher->addPaths(QStringList(folders.begin(), folders.end()));
}

void MainWindow::lookAtDisk() {
  if (m_session.work().isWorking() || QApplication::activeModalWidget()) {
    m_diskDelay.start();
    return;
  }
  Project* project = m_session.project();
  if (!project) return;
  m_editor->commit();
  const DiskChange change = m_disk.look(*project);
  if (!change.isEmpty()) apply(change);
}

void MainWindow::apply(const DiskChange& change) {
  Project* project = m_session.project();
  std::vector<std::string> reload = change.reload;
  for (const std::string& file : change.conflict) {
    const auto answer = m_session.questions().ask(
        {.text = tr("“%1” has changed on the disk, and you have changes of it that are not saved. "
                    "Load it from the disk and drop your changes?")
                     .arg(shownName(baseName(file))),
         .icon = QMessageBox::Warning,
         .buttons = QMessageBox::Yes | QMessageBox::No,
         .preset = QMessageBox::No});
    if (answer == QMessageBox::Yes) reload.push_back(file);
  }
  for (const std::string& file : reload) {
    UnitCore* unit = project->unitByFile(file);
    const bool isLoaded = unit && !unit->record().controlledFile && !unit->record().stub;
    if (isLoaded) reloadUnit(*unit);
  }
  for (const std::string& file : change.mode) {
    if (UnitCore* unit = project->unitByFile(file)) unit->unit().updateMode({});
  }
  m_editor->reload();
  refresh();
  if (!change.vanished.empty()) {
    QString names;
    for (const std::string& file : change.vanished) names += shownName(file) + "\n";
    m_session.questions().ask(
        {.text =
             tr("%n file(s) of the project are gone from the disk. Fetch them from the archive, "
                "or open the project anew.",
                nullptr, static_cast<int>(change.vanished.size())),
         .details = names,
         .icon = QMessageBox::Warning});
  }
}

}  // namespace veldra::host::desktop
