// The window's menus and its tool bar.

#include <QActionGroup>
#include <QApplication>
#include <QDockWidget>
#include <QMenuBar>
#include <QMessageBox>
#include <QToolBar>
#include <QTreeView>

#include "cm/ui/logic/ButtonRules.h"
#include "cm/ui/logic/OptionRules.h"
#include "host/desktop/Appearance.h"
#include "host/desktop/Text.h"
#include "host/desktop/window/Icons.h"
#include "host/desktop/window/MainWindow.h"
#include "host/desktop/window/OutputView.h"

namespace veldra::host::desktop {

QAction* MainWindow::addAction(QMenu& menu, const QString& iconName, const QString& text,
                               const QKeySequence& keys, void (MainWindow::*slot)()) {
  QAction* action = menu.addAction(text);
  action->setShortcut(keys);
  if (!iconName.isEmpty()) {
    action->setObjectName(iconName);
    action->setIcon(icon(iconName));
    action->setProperty("iconName", iconName);
  }
  connect(action, &QAction::triggered, this, slot);
  return action;
}

void MainWindow::buildActions() {
  m_toolBar = addToolBar(tr("&Tool Bar"));
  m_toolBar->setObjectName("ToolBar");
  m_toolBar->setIconSize({20, 20});
  m_toolBar->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
  m_toolBar->setMovable(false);
  m_treeMenu = new QMenu(this);
  buildFileMenu();
  buildEditMenu();
  buildViewMenu();
  buildCommandMenu();
  QMenu* help = menuBar()->addMenu(tr("&Help"));
  connect(help->addAction(tr("&About %1").arg(QCoreApplication::applicationName())),
          &QAction::triggered, this, [this] {
            m_session.questions().ask({.text = QCoreApplication::applicationName() + " " +
                                               QCoreApplication::applicationVersion() + "\n\n" +
                                               tr("Version control for models.")});
          });
  for (QAction* action : findChildren<QAction*>()) {
    if (!action->shortcut().isEmpty()) {
      action->setToolTip(QString(action->text()).remove('&').remove("…") + " (" +
                         action->shortcut().toString(QKeySequence::NativeText) + ")");
    }
  }
}

void MainWindow::buildFileMenu() {
  QMenu& menu = *menuBar()->addMenu(tr("&File"));
  QAction* open =
      addAction(menu, "open", tr("&Open Project…"), QKeySequence::Open, &MainWindow::chooseProject);
  m_recentMenu = menu.addMenu(tr("Open &Recent"));
  addAction(menu, "new", tr("&New Project…"), QKeySequence::New, &MainWindow::makeProject);
  menu.addSeparator();
  m_save = addAction(menu, "save", tr("&Save"), QKeySequence::Save, &MainWindow::save);
  m_projectActions.push_back(
      addAction(menu, {}, tr("&Close Project"), QKeySequence::Close, &MainWindow::closeProject));
  menu.addSeparator();
  QAction* quit = menu.addAction(tr("&Quit"));
  quit->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q));
  connect(quit, &QAction::triggered, this, &QWidget::close);
  m_toolBar->addAction(open);
  m_toolBar->addAction(m_save);
  m_toolBar->addSeparator();
}

void MainWindow::buildEditMenu() {
  QMenu& menu = *menuBar()->addMenu(tr("&Edit"));
  m_undo =
      addAction(menu, {}, tr("&Undo Last Change"), QKeySequence::Undo, &MainWindow::undoChange);
  menu.addSeparator();
  m_projectActions.push_back(addAction(menu, "new", tr("New U&nit…"),
                                       QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_N),
                                       &MainWindow::makeUnit));
  menu.addSeparator();
  QAction* settings = addAction(menu, "settings", tr("CM &Settings…"),
                                QKeySequence(Qt::CTRL | Qt::Key_Comma), &MainWindow::editSettings);
  settings->setMenuRole(QAction::PreferencesRole);
}

void MainWindow::buildViewMenu() {
  m_viewMenu = menuBar()->addMenu(tr("&View"));
  QAction* output = m_outputDock->toggleViewAction();
  output->setShortcut(QKeySequence(Qt::ALT | Qt::Key_1));
  QAction* trace = m_traceDock->toggleViewAction();
  trace->setShortcut(QKeySequence(Qt::ALT | Qt::Key_2));
  m_viewMenu->addActions({output, trace, m_toolBar->toggleViewAction()});
  m_viewMenu->addSeparator();
  const auto addStep = [this](const QString& text, auto step) {
    connect(m_viewMenu->addAction(text), &QAction::triggered, m_tree, step);
  };
  addStep(tr("&Expand All"), &QTreeView::expandAll);
  addStep(tr("&Collapse All"), &QTreeView::collapseAll);
  addAppearances(*m_viewMenu->addMenu(tr("&Appearance")));
  m_viewMenu->addSeparator();
  connect(m_viewMenu->addAction(tr("C&lear CM Output")), &QAction::triggered, m_output,
          &OutputView::clear);
}

void MainWindow::addAppearances(QMenu& menu) {
  auto* group = new QActionGroup(&menu);
  const auto add = [&](const QString& text, Appearance appearance) {
    QAction* action = menu.addAction(text);
    action->setCheckable(true);
    action->setChecked(savedAppearance() == appearance);
    group->addAction(action);
    connect(action, &QAction::triggered, this, [appearance] {
      saveAppearance(appearance);
      setAppearance(appearance);
    });
  };
  add(tr("As the &system"), Appearance::System);
  add(tr("&Light"), Appearance::Light);
  add(tr("&Dark"), Appearance::Dark);
}

void MainWindow::buildCommandMenu() {
  QMenu& menu = *menuBar()->addMenu(tr("Version &Control"));
  for (const WindowCommand& row : windowCommands()) {
    QAction* action = menu.addAction(shown(OptionRules::commandTitle(row.command)));
    action->setObjectName(row.icon);
    action->setShortcut(QKeySequence(row.shortcut));
    action->setStatusTip(shown(ButtonRules::tooltip(row.command)));
    action->setIcon(icon(row.icon));
    action->setProperty("iconName", row.icon);
    connect(action, &QAction::triggered, this, [this, &row] { runCommand(row); });
    m_commands[&row] = action;
    m_treeMenu->addAction(action);
    if (row.isOnToolBar) m_toolBar->addAction(action);
  }
  menu.addSeparator();
  m_toolBar->addSeparator();
  QAction* dialog = addAction(menu, "dialog", tr("CM &Dialog…"), QKeySequence(Qt::CTRL | Qt::Key_D),
                              &MainWindow::openDialog);
  QAction* status = addAction(menu, "refresh", tr("&Refresh Status"), QKeySequence::Refresh,
                              &MainWindow::refreshStatus);
  QAction* connection =
      addAction(menu, "connect", tr("Co&nnect to Archive…"), {}, &MainWindow::connectProject);
  m_projectActions.insert(m_projectActions.end(), {dialog, status, connection});
  m_toolBar->addAction(status);
  m_toolBar->addAction(dialog);
}

}  // namespace veldra::host::desktop
