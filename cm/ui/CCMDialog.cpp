#include "cm/ui/CCMDialog.h"

#include <QEvent>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QTreeView>
#include <QVBoxLayout>
#include <initializer_list>
#include <utility>

#include "cm/ui/Icons.h"
#include "cm/ui/RefillScope.h"
#include "cm/ui/logic/BackEndMode.h"
#include "cm/ui/logic/ProjectRoot.h"
#include "cm/ui/logic/ViewState.h"
#include "cm/ui/widgets/ButtonPanel.h"
#include "cm/ui/widgets/Control.h"
#include "cm/ui/widgets/FailureStrip.h"
#include "cm/ui/widgets/ListView.h"
#include "cm/ui/widgets/ProgressStrip.h"
#include "cm/ui/widgets/Text.h"
#include "cm/ui/widgets/UnitFilter.h"
#include "cm/ui/widgets/UnitListModel.h"
#include "cm/ui/widgets/UnitTreeModel.h"

namespace veldra {

namespace {
constexpr int RetryMilliseconds = 50;
}  // namespace

CCMDialog::CCMDialog(QWidget* parent)
    : CommandWindow(QStringLiteral("main"), parent),
      m_data(std::make_unique<WorkspaceData>()),
      m_listModel(new UnitListModel(*m_data, this)),
      m_treeModel(new UnitTreeModel(*m_data, this)),
      m_listFilter(new UnitFilter(m_listModel, this)),
      m_treeFilter(new UnitFilter(m_treeModel, this)) {
  buildControls();
  layOutControls();
  connectControls();
  OnInitDialog();
}

CCMDialog::~CCMDialog() {
  // Closing lays the views out once more, when what they show is gone already.
  for (QTreeView* view : {m_tree, m_list}) view->setModel(nullptr);
}

void CCMDialog::DoPopupCmDialog(QWidget* parent) {
  CCMDialog(parent).exec();
}

const LiveUnits& CCMDialog::units() {
  orderRows();
  return m_data->units;
}

void CCMDialog::buildControls() {
  m_panel = new ButtonPanel(this);
  m_filter = makeFilterField(this, tr("Filter units (Ctrl+F)"),
                             tr("Shows only units that contain this text"));
  m_tree = makeView(this, ControlId::UnitTree, tr("Units as a tree"));
  m_tree->setModel(m_treeModel);
  m_tree->setHeaderHidden(true);
  m_tree->setIconSize(unitIconWithStateSize(18));
  m_list = makeListView(this, ControlId::FlatList, tr("Units as a list"));
  m_list->setModel(m_listModel);
  m_empty = makeEmptyState(tr("What to do first"));
}

void CCMDialog::layOutControls() {
  auto* const views = new QVBoxLayout;
  for (QWidget* view : std::initializer_list<QWidget*>{m_tree, m_list, m_empty}) {
    views->addWidget(view, 1);
  }
  QVBoxLayout* const column = layOutColumn();
  column->addWidget(m_panel);
  column->addWidget(m_filter);
  column->addLayout(views, 1);
  layOutFoot(*column);
}

void CCMDialog::connectControls() {
  m_retry.setSingleShot(true);
  m_retry.setInterval(RetryMilliseconds);
  connect(&m_retry, &QTimer::timeout, this, [this] {
    if (m_isRefreshDue) refresh40001();
  });
  connect(m_panel, &ButtonPanel::pressed, this, &CCMDialog::press);
  connect(m_filter, &QLineEdit::textChanged, this, &CCMDialog::applyFilter);
  connect(m_list->header(), &QHeaderView::sectionClicked, this, &CCMDialog::OnColumnclickFlatlist);
  connect(&failureStrip(), &FailureStrip::selectWanted, this, [this] {
    const std::set<std::string> failed = progressStrip().results().failedFiles();
    selectFiles([&failed](const std::string& file) { return failed.contains(file); });
  });
  for (QTreeView* view : {m_tree, m_list}) {
    connect(view, &QWidget::customContextMenuRequested, this, &CCMDialog::showContextMenu);
  }
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
  addColumns();
  {
    const RefillScope once(*this);
    updateList();
    sortItems();
    CmFillCI();
  }
  restorePlace({880, 620});
  // Opening chooses nothing: the setting counts until somebody presses a button.
  showView();
}

void CCMDialog::addColumns() {
  m_listModel->setColumns(showsProviderStatus() ? UnitColumn::Count : UnitColumn::Controlled);
}

void CCMDialog::setView(bool flat) {
  ViewState::setViewMode(flat ? "Flat" : "Tree");
  showView();
}

void CCMDialog::showView() {
  if (fillVisibleView()) showRowsAnew();
  if (ViewState::isFlat() && std::exchange(m_isFitDue, false)) fitColumns(*m_list, width());
  updateState();
  m_panel->setCommandsEnabled(true);
  giveFocus(*visibleView());
}

LineView* CCMDialog::visibleView() const {
  return ViewState::isFlat() ? m_list : m_tree;
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
