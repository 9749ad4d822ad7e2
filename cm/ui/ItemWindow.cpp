#include "cm/ui/ItemWindow.h"

#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QTreeView>
#include <QVBoxLayout>
#include <utility>

#include "cm/core/CMArchiveItem.h"
#include "cm/ui/ControlIds.h"
#include "cm/ui/Icons.h"
#include "cm/ui/OptionWindows.h"
#include "cm/ui/logic/ViewState.h"
#include "cm/ui/options/CCMDiffDialog.h"
#include "cm/ui/widgets/CommandButton.h"
#include "cm/ui/widgets/Control.h"
#include "cm/ui/widgets/FailureStrip.h"
#include "cm/ui/widgets/ItemListModel.h"
#include "cm/ui/widgets/ListView.h"
#include "cm/ui/widgets/ProgressStrip.h"
#include "cm/ui/widgets/Text.h"
#include "cm/ui/widgets/UnitFilter.h"

namespace veldra {

ItemWindow::ItemWindow(const QString& name, int listId, std::shared_ptr<ItemRows> rows,
                       QWidget* parent)
    : CommandWindow(name, parent),
      m_name(bytesOf(name)),
      m_rows(std::move(rows)),
      m_model(new ItemListModel(m_rows, this)),
      m_unitFilter(new UnitFilter(m_model, this)) {
  m_buttonRow = new QHBoxLayout;
  m_buttonRow->setSpacing(3);
  m_buttonRow->addStretch();
  m_head = new QVBoxLayout;
  m_filter = makeFilterField(this, tr("Filter entries (Ctrl+F)"),
                             tr("Shows only entries that contain this text"));
  m_list = makeListView(this, listId, tr("Entries"));
  m_list->setModel(m_model);
  m_empty = makeEmptyState(tr("Nothing to show"));
  QVBoxLayout* const column = layOutColumn();
  column->addLayout(m_buttonRow);
  column->addLayout(m_head);
  column->addWidget(m_filter);
  column->addWidget(m_list, 1);
  column->addWidget(m_empty, 1);
  layOutFoot(*column);
  connect(m_filter, &QLineEdit::textChanged, this, &ItemWindow::applyFilter);
  connect(m_list->header(), &QHeaderView::sectionClicked, this, &ItemWindow::OnColumnclick);
  connect(m_list, &QWidget::customContextMenuRequested, this, &ItemWindow::showContextMenu);
  connect(&failureStrip(), &FailureStrip::selectWanted, this, &ItemWindow::selectFailed);
}

ItemWindow::~ItemWindow() = default;

CommandButton* ItemWindow::addButton(ItemButton which, const std::function<void()>& press) {
  const ButtonFace face = ItemButtonRules::face(which);
  auto* const button = new CommandButton(face, this);
  button->setFixedSize(button->sizeHint());
  button->setEnabled(face.isShown);
  m_buttonRow->insertWidget(static_cast<int>(m_buttons.size()), button);
  m_buttons.push_back(button);
  if (press) {
    connect(button, &QAbstractButton::clicked, this, [this, press, caption = button->text()] {
      m_runningCaption = caption;
      runOnce(caption, press);
    });
  }
  return button;
}

void ItemWindow::setEmptyText(const QString& text) {
  m_empty->setText(text);
}

void ItemWindow::start() {
  restorePlace({820, 560});
  sortItems();
  m_list->setFocus();
}

void ItemWindow::beginRefill() {
  m_wasEmpty = m_rows->size() == 0;
  m_model->beginRefill();
}

void ItemWindow::endRefill() {
  m_model->endRefill();
  // Until now there was nothing that columns could be fitted to.
  if (m_wasEmpty && m_rows->size() > 0) fitColumns(*m_list, width());
  CmFillCI();
}

void ItemWindow::CmFillCI() {
  applyFilter(m_filter->text());
  // Later the user may have drawn them himself.
  if (!m_areColumnsFitted && m_rows->size() > 0) {
    m_areColumnsFitted = true;
    fitColumns(*m_list, width());
  }
  // Every reset made a new selection model.
  connect(m_list->selectionModel(), &QItemSelectionModel::selectionChanged, this,
          &ItemWindow::updateState, Qt::UniqueConnection);
  m_list->header()->setSortIndicator(ViewState::itemSortColumn(m_name), Qt::AscendingOrder);
}

void ItemWindow::sortItems() {
  beginRefill();
  m_rows->sort(ViewState::itemSortColumn(m_name));
  endRefill();
}

void ItemWindow::OnColumnclick(int column) {
  ViewState::setItemSortColumn(m_name, column);
  CmSelectedItems();
  sortItems();
  CmSelectTheItems();
}

CMArchiveItemList ItemWindow::CmSelectedItems() {
  m_selectedRows = selectedRows(*m_list, *m_unitFilter);
  return m_rows->itemsOf(m_selectedRows);
}

void ItemWindow::CmSelectTheItems() {
  selectRows(*m_list, *m_unitFilter, *m_model, m_selectedRows);
  giveFocus(*m_list);
}

void ItemWindow::applyFilter(const QString& text) {
  m_unitFilter->apply(text, *m_list);
  updateState();
}

void ItemWindow::selectFailed() {
  m_selectedRows.clear();
  const std::set<std::string> failed = progressStrip().results().failedFiles();
  for (std::size_t row = 0; row < m_rows->size(); ++row) {
    if (failed.contains(m_rows->item(row).getFileNameWithPath())) {
      m_selectedRows.push_back(static_cast<int>(row));
    }
  }
  CmSelectTheItems();
}

void ItemWindow::showContextMenu(const QPoint& place) {
  QMenu menu(this);
  for (CommandButton* button : m_buttons) {
    if (button->isHidden()) continue;
    QAction* const action =
        menu.addAction(button->icon(), button->text(), button, &QAbstractButton::click);
    action->setShortcut(button->shortcut());
    action->setShortcutVisibleInContextMenu(true);
    action->setEnabled(button->isEnabled());
  }
  menu.exec(m_list->viewport()->mapToGlobal(place));
}

std::optional<CommandOptions> ItemWindow::askOptions(const OptionPresets& presets) {
  return showOptionWindow(presets, this);
}

std::optional<VersionChoice> ItemWindow::askVersions() {
  CCMDiffDialog window(this);
  if (window.exec() != QDialog::Accepted) return std::nullopt;
  return VersionChoice{.first = window.firstVersion(),
                       .second = window.secondVersion(),
                       .withDescendants = window.options().withDescendants};
}

void ItemWindow::commandStarts() {
  m_list->viewport()->setUpdatesEnabled(false);
  for (CommandButton* button : m_buttons) button->setEnabled(false);
  holdInput(m_runningCaption);
}

void ItemWindow::commandEnds() {
  releaseInput();
}

const BatchResults* ItemWindow::results() const {
  return &progressStrip().results();
}

void ItemWindow::afterCommand() {
  m_list->viewport()->setUpdatesEnabled(true);
  for (CommandButton* button : m_buttons) button->setEnabled(!button->isHidden());
}

void ItemWindow::refreshItems() {
  sortItems();
  CmSelectTheItems();
}

void ItemWindow::updateState() {
  const bool isEmpty = m_rows->size() == 0;
  m_list->setVisible(!isEmpty);
  m_filter->setVisible(!isEmpty);
  m_empty->setVisible(isEmpty);
  const int all = static_cast<int>(m_rows->size());
  const int selected = static_cast<int>(m_list->selectedCount());
  const bool filtered = m_list->model() != m_model;
  const QString entries = filtered
                              ? tr("%1 of %n row(s)", nullptr, all).arg(m_list->model()->rowCount())
                              : tr("%n row(s)", nullptr, all);
  totals().setText(tr("%1, %n selected", nullptr, selected).arg(entries));
}

}  // namespace veldra
