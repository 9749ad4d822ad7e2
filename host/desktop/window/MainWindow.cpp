#include "host/desktop/window/MainWindow.h"

#include <QCloseEvent>
#include <QDockWidget>
#include <QFileSystemWatcher>
#include <QHeaderView>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QSettings>
#include <QSplitter>
#include <QStackedWidget>
#include <QStatusBar>
#include <QToolBar>
#include <QTreeView>
#include <QVBoxLayout>
#include <cstdlib>

#include "cm/ui/widgets/FailureStrip.h"
#include "host/desktop/Text.h"
#include "host/desktop/window/EditorParts.h"
#include "host/desktop/window/Icons.h"
#include "host/desktop/window/ModelTreeModel.h"
#include "host/desktop/window/OutputView.h"
#include "host/desktop/window/ProgressPopup.h"
#include "host/desktop/window/ProviderNotice.h"
#include "host/desktop/window/UnitEditor.h"
#include "host/desktop/window/WelcomePage.h"

namespace veldra::host::desktop {
namespace {

// Tools write many files at once; one look after the last of them is enough.
constexpr int DiskDelayMilliseconds = 300;
// When the way the docks are laid out changes, what was remembered does not fit any more.
constexpr int LayoutVersion = 1;

}  // namespace

MainWindow::MainWindow(DesktopSession& session)
    : m_session(session), m_watcher(new QFileSystemWatcher(this)) {
  setObjectName("MainWindow");
  resize(1180, 760);
  buildContent();
  buildDocks();
  buildActions();
  m_progress = new ProgressPopup(session.work(), this);
  auto* notice = new ProviderNotice(session.work(), this);
  connect(notice, &ProviderNotice::leaveWanted, this, &MainWindow::leaveNow);
  m_leave = [] { std::_Exit(EXIT_SUCCESS); };
  m_diskDelay.setSingleShot(true);
  m_diskDelay.setInterval(DiskDelayMilliseconds);
  connect(&m_diskDelay, &QTimer::timeout, this, &MainWindow::lookAtDisk);
  connect(m_watcher, &QFileSystemWatcher::directoryChanged, &m_diskDelay,
          qOverload<>(&QTimer::start));
  connect(&m_session, &DesktopSession::projectChanged, this, [this] {
    m_disk = DiskChanges();
    if (Project* project = m_session.project()) m_disk.remember(*project);
  });
  connect(&m_session, &DesktopSession::saved, this, [this](const std::vector<std::string>& files) {
    for (const std::string& file : files) m_disk.remember(file);
  });
  connect(&m_session.work(), &WorkWatch::providerCalled, this, &MainWindow::showProviderCall);
  m_session.door().setConnectWindow([this] { connectProject(); });
  restoreLayout();
  showRecent();
  showProject();
}

MainWindow::~MainWindow() {
  m_session.door().setConnectWindow({});
}

void MainWindow::buildContent() {
  m_pages = new QStackedWidget;
  m_welcome = new WelcomePage;
  connect(m_welcome, &WelcomePage::openWanted, this, &MainWindow::chooseProject);
  connect(m_welcome, &WelcomePage::newWanted, this, &MainWindow::makeProject);
  connect(m_welcome, &WelcomePage::recentWanted, this, &MainWindow::openProject);

  m_model = new ModelTreeModel(this);
  m_tree = new QTreeView;
  m_tree->setObjectName("ModelTree");
  m_tree->setAccessibleName(tr("Model"));
  m_tree->setAccessibleDescription(
      tr("The units of the project; commands work on the selected ones, and the current one is "
         "edited beside"));
  m_tree->setModel(m_model);
  m_tree->setSelectionMode(QAbstractItemView::ExtendedSelection);
  m_tree->setUniformRowHeights(true);
  m_tree->setIconSize({18, 18});
  m_tree->setFrameShape(QFrame::NoFrame);
  m_tree->setContextMenuPolicy(Qt::CustomContextMenu);
  m_tree->header()->setStretchLastSection(false);
  m_tree->header()->setSectionResizeMode(ModelTreeModel::Name, QHeaderView::Stretch);
  m_tree->header()->setSectionResizeMode(ModelTreeModel::Version, QHeaderView::ResizeToContents);
  m_tree->header()->setSectionResizeMode(ModelTreeModel::Holder, QHeaderView::ResizeToContents);
  connect(m_tree, &QWidget::customContextMenuRequested, this, &MainWindow::showTreeMenu);
  connect(m_tree->selectionModel(), &QItemSelectionModel::currentChanged, this,
          &MainWindow::showCurrentUnit);
  connect(m_tree->selectionModel(), &QItemSelectionModel::selectionChanged, this,
          &MainWindow::updateActions);

  m_editor = new UnitEditor(m_session);
  connect(m_editor, &UnitEditor::unitChanged, this, &MainWindow::refresh);
  connect(m_editor, &UnitEditor::checkOutWanted, this,
          [this] { runCommand(windowCommand(DialogCommand::CheckOut)); });
  m_splitter = new QSplitter;
  m_splitter->setObjectName("Splitter");
  m_splitter->addWidget(m_tree);
  m_splitter->addWidget(m_editor);
  m_splitter->setStretchFactor(1, 1);
  m_splitter->setSizes({380, 800});
  m_splitter->setChildrenCollapsible(false);
  m_pages->addWidget(m_welcome);
  auto* work = new QWidget;
  auto* column = new QVBoxLayout(work);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  m_hint = new Banner;
  m_hint->label()->setText(tr("This project is not under version control yet."));
  QPushButton* const connectIt = m_hint->addButton(
      tr("Co&nnect to Archive…"), tr("Chooses the tool and the archive that keep the versions"));
  connect(connectIt, &QPushButton::clicked, this, &MainWindow::connectProject);
  column->addWidget(m_hint);
  column->addWidget(m_splitter, 1);
  m_failures = new FailureStrip;
  m_failures->layout()->setContentsMargins(9, 4, 9, 4);
  connect(m_failures, &FailureStrip::selectWanted, this, &MainWindow::selectFailed);
  column->addWidget(m_failures);
  m_pages->addWidget(work);
  setCentralWidget(m_pages);

  m_toolLabel = new QLabel;
  m_toolLabel->setTextFormat(Qt::PlainText);
  m_countLabel = new QLabel;
  statusBar()->addWidget(m_countLabel, 1);
  statusBar()->addPermanentWidget(m_toolLabel);
}

void MainWindow::buildDocks() {
  const auto dock = [this](const QString& name, const QString& title, QWidget* content) {
    auto* made = new QDockWidget(title, this);
    made->setObjectName(name);
    made->setWidget(content);
    content->setAccessibleName(title);
    addDockWidget(Qt::BottomDockWidgetArea, made);
    return made;
  };
  m_output = new OutputView;
  m_output->setPlaceholderText(tr("What the CM tool does and says appears here."));
  m_output->setAccessibleDescription(tr("What the CM tool does and says"));
  m_output->follow(m_session.output());
  m_outputDock = dock("OutputDock", tr("CM Output"), m_output);
  m_trace = new OutputView;
  m_trace->setPlaceholderText(tr("The module's steps appear here."));
  m_trace->setAccessibleDescription(tr("The steps of the module, for whoever looks for a fault"));
  connect(&m_session, &DesktopSession::traceLine, m_trace,
          [this](const QString& line) { m_trace->addText(line + '\n'); });
  m_traceDock = dock("TraceDock", tr("Trace Log"), m_trace);
  tabifyDockWidget(m_outputDock, m_traceDock);
  m_outputDock->raise();
  resizeDocks({m_outputDock}, {180}, Qt::Vertical);
}

void MainWindow::showProviderCall(const QString& entryPoint) {
  if (entryPoint.isEmpty()) return statusBar()->clearMessage();
  statusBar()->showMessage(tr("The source control provider is at work: %1").arg(entryPoint));
}

void MainWindow::restoreLayout() {
  const QSettings settings;
  restoreGeometry(settings.value("window/geometry").toByteArray());
  restoreState(settings.value("window/state").toByteArray(), LayoutVersion);
  m_splitter->restoreState(settings.value("window/splitter").toByteArray());
  std::vector<std::string> recent;
  for (const QString& project : settings.value("recent").toStringList()) {
    recent.push_back(bytesOf(project));
  }
  m_recent = RecentProjects(std::move(recent));
}

void MainWindow::closeEvent(QCloseEvent* event) {
  if (m_session.work().isWorking() || !mayLeave()) {
    event->ignore();
    return;
  }
  storeLayout();
  event->accept();
}

void MainWindow::storeLayout() const {
  QSettings settings;
  settings.setValue("window/geometry", saveGeometry());
  settings.setValue("window/state", saveState(LayoutVersion));
  settings.setValue("window/splitter", m_splitter->saveState());
}

/// No destructor runs: the provider holds a thread, and nothing can take the call back.
void MainWindow::leaveNow() {
  m_editor->commit();
  if (m_session.hasUnsaved() && !m_session.save()) return;
  storeLayout();
  QSettings().sync();
  m_leave();
}

void MainWindow::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (event->type() == QEvent::ActivationChange && isActiveWindow()) m_diskDelay.start();
  if (event->type() != QEvent::PaletteChange || !m_tree) return;
  forgetIcons();
  for (QAction* action : findChildren<QAction*>()) {
    const QString name = action->property("iconName").toString();
    if (!name.isEmpty()) action->setIcon(icon(name));
  }
  m_tree->viewport()->update();
}

// --- the tree ---

const OutlineNode* MainWindow::currentNode() const {
  return m_model->node(m_tree->currentIndex());
}

std::vector<const OutlineNode*> MainWindow::selectedNodes() const {
  std::vector<const OutlineNode*> nodes;
  for (const QModelIndex& index : m_tree->selectionModel()->selectedRows()) {
    nodes.push_back(m_model->node(index));
  }
  return nodes;
}

UnitList MainWindow::selectedUnits(bool withDescendants) {
  UnitList units;
  for (const OutlineNode* node : selectedNodes()) {
    // A package without a file of its own can only mean what it holds.
    collectUnits(*m_session.project(), *node, withDescendants || node->file.empty(), units);
  }
  return units;
}

void MainWindow::selectUnits(const QStringList& paths) {
  QItemSelectionModel* selection = m_tree->selectionModel();
  const QSignalBlocker quiet(selection);
  selection->clearSelection();
  for (const QString& path : paths) {
    const QModelIndex index = m_model->indexOfPath(bytesOf(path));
    if (!index.isValid()) continue;
    selection->select(index, QItemSelectionModel::Select | QItemSelectionModel::Rows);
    if (path == paths.front()) {
      selection->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
      m_tree->scrollTo(index);
    }
  }
  m_tree->viewport()->update();
  showCurrentUnit();
  updateActions();
}

void MainWindow::refresh() {
  QStringList selected;
  if (const OutlineNode* current = currentNode()) selected << shown(current->path);
  for (const OutlineNode* node : selectedNodes()) {
    if (!selected.contains(shown(node->path))) selected << shown(node->path);
  }
  QStringList collapsed;
  std::vector<QModelIndex> open = {m_model->index(0, 0)};
  while (!open.empty()) {
    const QModelIndex at = open.back();
    open.pop_back();
    const int rows = m_model->rowCount(at);
    if (rows > 0 && !m_tree->isExpanded(at)) collapsed << shown(m_model->node(at)->path);
    for (int row = 0; row < rows; ++row) open.push_back(m_model->index(row, 0, at));
  }
  Project* project = m_session.project();
  {
    const QSignalBlocker quiet(m_tree->selectionModel());
    m_model->setOutline(project ? outlineOf(*project, m_archive) : nullptr);
  }
  m_tree->expandAll();
  for (const QString& path : collapsed) {
    m_tree->collapse(m_model->indexOfPath(bytesOf(path)));
  }
  selectUnits(selected);
}

void MainWindow::showCurrentUnit() {
  const OutlineNode* node = currentNode();
  m_editor->showUnit(node ? node->file : std::string());
}

void MainWindow::updateActions() {
  Project* project = m_session.project();
  const bool hasProject = project != nullptr;
  const bool hasSelection = hasProject && m_tree->selectionModel()->hasSelection();
  for (QAction* action : m_projectActions) action->setEnabled(hasProject);
  for (const auto& [row, action] : m_commands) {
    action->setVisible(!hasProject || isAvailable(*row));
    action->setEnabled(hasSelection);
  }
  const bool isUnsaved = m_session.hasUnsaved();
  m_save->setEnabled(isUnsaved);
  m_undo->setEnabled(hasProject && project->undo().canUndo());
  setWindowModified(isUnsaved);
  const auto count = hasProject ? static_cast<int>(project->files().size()) : 0;
  const auto selected = static_cast<int>(selectedNodes().size());
  m_countLabel->setText(hasProject ? tr("%n unit(s)", nullptr, count) + ", " +
                                         tr("%n selected", nullptr, selected)
                                   : QString());
}

void MainWindow::showTreeMenu(const QPoint& at) {
  m_treeMenu->popup(m_tree->viewport()->mapToGlobal(at));
}

}  // namespace veldra::host::desktop
