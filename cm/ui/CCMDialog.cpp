#include "cm/ui/CCMDialog.h"

#include <QCloseEvent>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSettings>
#include <QShortcut>
#include <QStackedLayout>
#include <QTreeView>
#include <QVBoxLayout>
#include <algorithm>

#include "cm/ui/Icons.h"
#include "cm/ui/RefillScope.h"
#include "cm/ui/Translations.h"
#include "cm/ui/logic/BackEndMode.h"
#include "cm/ui/logic/ProjectRoot.h"
#include "cm/ui/logic/ViewState.h"
#include "cm/ui/widgets/ButtonPanel.h"
#include "cm/ui/widgets/Control.h"
#include "cm/ui/widgets/FailureStrip.h"
#include "cm/ui/widgets/HeldInput.h"
#include "cm/ui/widgets/ProgressStrip.h"
#include "cm/ui/widgets/Text.h"
#include "cm/ui/widgets/UnitFilter.h"
#include "cm/ui/widgets/UnitListModel.h"
#include "cm/ui/widgets/UnitTreeModel.h"

namespace veldra {

namespace {

constexpr int HeaderMargin = 15;

/// The open dialogs, the topmost last.
std::vector<CCMDialog*>& openDialogs() {
  static std::vector<CCMDialog*> dialogs;
  return dialogs;
}

QSettings& dialogSettings() {
  static QSettings settings(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("veldra-cm"),
                            QStringLiteral("dialogs"));
  return settings;
}

}  // namespace

CCMDialog::CCMDialog(QWidget* parent)
    : QDialog(parent),
      m_data(std::make_unique<WorkspaceData>()),
      m_listModel(new UnitListModel(*m_data, this)),
      m_treeModel(new UnitTreeModel(*m_data, this)),
      m_listFilter(new UnitFilter(m_listModel, this)),
      m_treeFilter(new UnitFilter(m_treeModel, this)) {
  loadDialogTranslationsOnce();
  openDialogs().push_back(this);
  setWindowFlag(Qt::WindowMaximizeButtonHint);
  buildControls();
  layOutControls();
  connectControls();
  OnInitDialog();
}

CCMDialog::~CCMDialog() {
  std::erase(openDialogs(), this);
  // Closing lays the views out once more, when what they show is gone already.
  for (QTreeView* view : {m_tree, m_list}) view->setModel(nullptr);
}

void CCMDialog::DoPopupCmDialog(QWidget* parent) {
  CCMDialog(parent).exec();
}

CommandWindows& CCMDialog::commandWindows() {
  static CommandWindows windows;
  return windows;
}

IProgress* CCMDialog::currentProgress() {
  return openDialogs().empty() ? nullptr : openDialogs().back()->m_progress;
}

void CCMDialog::keepPainting() {
  ProgressStrip::keepPainting();
}

const LiveUnits& CCMDialog::units() const {
  return m_data->units;
}

QTreeView* CCMDialog::makeView(int id, const QString& name) {
  auto* const view = control(new QTreeView(this), id, name);
  view->setSelectionMode(QAbstractItemView::ExtendedSelection);
  view->setUniformRowHeights(true);
  view->setAllColumnsShowFocus(true);
  view->setTextElideMode(Qt::ElideMiddle);
  view->setContextMenuPolicy(Qt::CustomContextMenu);
  view->setEditTriggers(QAbstractItemView::NoEditTriggers);
  return view;
}

void CCMDialog::buildControls() {
  m_panel = new ButtonPanel(this);
  m_filter = control(new QLineEdit(this), ControlId::Filter, tr("Filter"),
                     tr("Shows only units that contain this text"));
  m_filter->setPlaceholderText(tr("Filter units (Ctrl+F)"));
  m_filter->setClearButtonEnabled(true);
  m_tree = makeView(ControlId::UnitTree, tr("Units as a tree"));
  m_tree->setModel(m_treeModel);
  m_tree->setHeaderHidden(true);
  m_tree->setIconSize(unitIconWithStateSize(18));
  m_list = makeView(ControlId::FlatList, tr("Units as a list"));
  m_list->setModel(m_listModel);
  m_list->setRootIsDecorated(false);
  m_list->setAlternatingRowColors(true);
  m_list->setIconSize({18, 18});
  m_empty = control(new QLabel(this), ControlId::EmptyState, tr("What to do first"));
  m_empty->setAlignment(Qt::AlignCenter);
  m_empty->setWordWrap(true);
  m_totals = control(new QLabel(this), ControlId::Totals, tr("Totals"));
  m_progress = new ProgressStrip(this);
  m_failures = new FailureStrip(this);
}

void CCMDialog::layOutControls() {
  auto* const views = new QVBoxLayout;
  for (QWidget* view : std::initializer_list<QWidget*>{m_tree, m_list, m_empty}) {
    views->addWidget(view, 1);
  }
  auto* const close = control(new QPushButton(tr("&Close"), this), ControlId::Close, tr("Close"));
  connect(close, &QPushButton::clicked, this, &CCMDialog::reject);
  close->setAutoDefault(false);
  auto* const foot = new QHBoxLayout;
  foot->addWidget(m_totals);
  foot->addWidget(m_progress, 1);
  foot->addStretch();
  foot->addWidget(close);
  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins(14, 12, 14, 12);
  layout->setSpacing(10);
  layout->addWidget(m_panel);
  layout->addWidget(m_filter);
  layout->addLayout(views, 1);
  layout->addWidget(m_failures);
  layout->addLayout(foot);
}

void CCMDialog::connectControls() {
  connect(m_panel, &ButtonPanel::pressed, this, &CCMDialog::press);
  connect(m_filter, &QLineEdit::textChanged, this, &CCMDialog::applyFilter);
  connect(m_list->header(), &QHeaderView::sectionClicked, this, &CCMDialog::OnColumnclickFlatlist);
  connect(m_failures, &FailureStrip::selectWanted, this, [this] {
    selectFiles(
        [this](const std::string& file) { return m_progress->failedFiles().contains(file); });
  });
  for (QTreeView* view : {m_tree, m_list}) {
    connect(view, &QWidget::customContextMenuRequested, this, &CCMDialog::showContextMenu);
  }
  auto* const find = new QShortcut(QKeySequence::Find, this);
  connect(find, &QShortcut::activated, m_filter, [this] {
    m_filter->setFocus();
    m_filter->selectAll();
  });
}

void CCMDialog::OnInitDialog() {
  const IProject* const project = activeProjectUnit();
  setWindowTitle(project != nullptr ? tr("CM: %1").arg(shown(project->getName()))
                                    : tr("Configuration Management"));
  setWindowIcon(commandIcon(DialogCommand::ListArchive));
  if (project != nullptr) {
    loadEverything("CM Dialog");
    ViewState::initialize();
  }
  const CommandWindows& windows = commandWindows();
  m_panel->setAvailable(DialogCommand::ListArchive, windows.listArchive != nullptr);
  m_panel->setAvailable(DialogCommand::Compare, windows.compare != nullptr);
  m_panel->setAvailable(DialogCommand::Synchronize, windows.synchronize != nullptr);
  addColumns();
  {
    const RefillScope once(*this);
    updateList();
    sortItems();
    CmFillCI();
  }
  setView(ViewState::isFlat());
  restoreGeometryAndColumns();
}

void CCMDialog::addColumns() {
  m_listModel->setColumns(showsProviderStatus() ? UnitColumn::Count : UnitColumn::Controlled);
  QHeaderView& header = *m_list->header();
  header.setSectionsClickable(true);
  header.setSortIndicatorShown(true);
  header.setHighlightSections(false);
  header.setStretchLastSection(true);
}

void CCMDialog::restoreGeometryAndColumns() {
  const QByteArray geometry = dialogSettings().value(QStringLiteral("main/geometry")).toByteArray();
  if (geometry.isEmpty() || !restoreGeometry(geometry)) resize(880, 620);
  const QFontMetrics metrics(m_list->header()->font());
  for (int column = 0; column < m_listModel->columnCount(); ++column) {
    const QString title =
        m_listModel->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
    const int smallest = metrics.horizontalAdvance(title) + HeaderMargin;
    m_list->resizeColumnToContents(column);
    const int wanted = column == UnitColumn::File ? width() * 2 / 5 : m_list->columnWidth(column);
    m_list->setColumnWidth(column, std::max(smallest + HeaderMargin, wanted));
  }
}

void CCMDialog::saveGeometryAndColumns() {
  dialogSettings().setValue(QStringLiteral("main/geometry"), saveGeometry());
}

void CCMDialog::setView(bool flat) {
  ViewState::setViewMode(flat ? "Flat" : "Tree");
  if (!flat && m_isExpandDue) {
    m_tree->expandAll();
    m_isExpandDue = false;
  }
  updateState();
  m_panel->setCommandsEnabled(true);
  visibleView()->setFocus();
}

QTreeView* CCMDialog::visibleView() const {
  return ViewState::isFlat() ? m_list : m_tree;
}

void CCMDialog::reject() {
  if (m_isRunning) return;
  saveGeometryAndColumns();
  QDialog::reject();
}

void CCMDialog::closeEvent(QCloseEvent* event) {
  if (m_isRunning) return event->ignore();
  QDialog::closeEvent(event);
}

void CCMDialog::changeEvent(QEvent* event) {
  QDialog::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) forgetIcons();
}

bool CCMDialog::event(QEvent* event) {
  if (event->type() == static_cast<QEvent::Type>(RefreshMessage)) {
    refresh40001();
    return true;
  }
  return QDialog::event(event);
}

bool CCMDialog::nativeEvent(const QByteArray& type, void* message, qintptr* result) {
  // The beginning of the system's message; on other systems the type never says so.
  struct MessageHead {
    void* window;
    unsigned number;
  };
  if (type == "windows_generic_MSG" &&
      static_cast<const MessageHead*>(message)->number == RefreshMessage) {
    refresh40001();
    *result = 0;
    return true;
  }
  return QDialog::nativeEvent(type, message, result);
}

}  // namespace veldra
