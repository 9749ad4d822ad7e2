#pragma once

#include <QMainWindow>
#include <QTimer>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "host/desktop/commands/CommandTable.h"
#include "host/desktop/logic/DiskChanges.h"
#include "host/desktop/logic/ModelOutline.h"
#include "host/desktop/logic/RecentProjects.h"
#include "host/desktop/session/DesktopSession.h"

class QDockWidget;
class QFileSystemWatcher;
class QLabel;
class QSplitter;
class QStackedWidget;
class QTreeView;

namespace veldra {
class FailureStrip;
}

namespace veldra::host::desktop {

class Banner;
class ModelTreeModel;
class OutputView;
class ProgressPopup;
class UnitEditor;
class WelcomePage;

/// The program's window: the model tree, the unit in it that is edited, the CM output and the trace
/// log, and every command.
class MainWindow : public QMainWindow {
  Q_OBJECT

 public:
  /// `session` must outlive the window.
  explicit MainWindow(DesktopSession& session);
  ~MainWindow() override;

  /// Opens a project after asking about unsaved work. False when that comes to nothing.
  bool openProject(const QString& directoryOrFile);
  /// Selects the units of these paths below the project.
  void selectUnits(const QStringList& paths);
  /// What ends the program while the provider holds one of its threads; by default the process
  /// ends at once.
  void setWayOut(std::function<void()> leave) { m_leave = std::move(leave); }
  /// Looks at the disk now, as the window does when it is activated; later when a command is at
  /// work or a window stands above this one, since both know units that loading would replace.
  void lookAtDisk();

 protected:
  void closeEvent(QCloseEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  // --- building ---
  void buildContent();
  void buildDocks();
  void buildActions();
  void buildFileMenu();
  void buildEditMenu();
  void buildViewMenu();
  void buildCommandMenu();
  void addAppearances(QMenu& menu);
  QAction* addAction(QMenu& menu, const QString& iconName, const QString& text,
                     const QKeySequence& keys, void (MainWindow::*slot)());
  void restoreLayout();
  void storeLayout() const;
  void leaveNow();
  void showProviderCall(const QString& entryPoint);

  // --- projects ---
  void chooseProject();
  void makeProject();
  void closeProject();
  void showProject();
  void showTool(const QString& text);
  void showRecent();
  bool mayLeave();
  void save();
  void undoChange();
  void makeUnit();

  // --- the tree ---
  void refresh();
  void showCurrentUnit();
  const OutlineNode* currentNode() const;
  std::vector<const OutlineNode*> selectedNodes() const;
  UnitList selectedUnits(bool withDescendants);
  void updateActions();
  void showTreeMenu(const QPoint& at);

  // --- version control ---
  void runCommand(const WindowCommand& row);
  bool mayLoseChanges(const UnitList& units);
  void tellEnd(const WindowCommand& row, bool isDone);
  void selectFailed();
  void tellReport(const CommandReport& report, const QString& operation);
  void openDialog();
  void connectProject();
  CommandReport listArchive();
  void refreshStatus();
  /// As the tool's setting for it says: always, never, or after a question.
  void refreshStatusAtOpening();
  void connectNow();
  void connectThroughProvider();
  /// What the last command has done is no news when the disk is looked at.
  void rememberOwnWork();
  /// The module has been at work: files and units may be others.
  void afterWork();
  void editSettings();

  // --- the disk ---
  void watchFolders();
  void apply(const DiskChange& change);

  DesktopSession& m_session;
  RecentProjects m_recent;
  DiskChanges m_disk;
  ArchiveStatus m_archive;
  QTimer m_diskDelay;
  QFileSystemWatcher* m_watcher;
  std::function<void()> m_leave;
  std::map<const WindowCommand*, QAction*> m_commands;
  std::vector<QAction*> m_projectActions;
  QAction* m_save = nullptr;
  QAction* m_undo = nullptr;
  QMenu* m_recentMenu = nullptr;
  QMenu* m_viewMenu = nullptr;
  QMenu* m_treeMenu = nullptr;
  QToolBar* m_toolBar = nullptr;

  QStackedWidget* m_pages;
  WelcomePage* m_welcome;
  QSplitter* m_splitter;
  QTreeView* m_tree = nullptr;
  ModelTreeModel* m_model;
  UnitEditor* m_editor;
  OutputView* m_output;
  OutputView* m_trace;
  QDockWidget* m_outputDock;
  QDockWidget* m_traceDock;
  Banner* m_hint;
  FailureStrip* m_failures;
  std::set<std::string> m_failedFiles;  ///< Of the last command.
  QLabel* m_toolLabel;
  QLabel* m_countLabel;
  ProgressPopup* m_progress;
};

}  // namespace veldra::host::desktop
