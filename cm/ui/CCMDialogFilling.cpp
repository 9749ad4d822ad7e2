#include <QHeaderView>
#include <QItemSelectionModel>
#include <QLabel>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <QTreeView>
#include <unordered_set>

#include "cm/core/CMFacade.h"
#include "cm/ui/RefillScope.h"
#include "cm/ui/logic/BackEndMode.h"
#include "cm/ui/logic/ProjectRoot.h"
#include "cm/ui/logic/SelectionRules.h"
#include "cm/ui/logic/ViewState.h"
#include "cm/ui/widgets/ListView.h"
#include "cm/ui/widgets/Text.h"
#include "cm/ui/widgets/UnitFilter.h"
#include "cm/ui/widgets/UnitListModel.h"
#include "cm/ui/widgets/UnitTreeModel.h"

namespace veldra {

void CCMDialog::updateList() {
  const RefillScope once(*this);
  UnitList units;
  ArgumentList noArguments;
  DiagnosticList diagnostics;
  if (activeProjectUnit() != nullptr) CMFacade::ListWorkspace(units, noArguments, diagnostics);
  std::erase(units, nullptr);
  // A view on as many rows as before need not be laid out anew.
  const bool keepsRows = units.size() == m_data->units.size();
  if (!m_keepsSelection || !keepsRows) setSelection(*m_list, {});
  if (!keepsRows) m_listModel->beginRefill();
  m_treeModel->beginRefill();
  m_data->isFrozen = false;
  m_data->texts.emplace();
  m_data->units.assign(units);
  m_data->tree.clear();
  m_isTreeDue = true;
  m_isOrderDue = false;
  m_treeModel->endRefill();
  if (!keepsRows) m_listModel->endRefill();
  CmFillCI();
}

void CCMDialog::CmFillCI() {
  m_isRefillDue = true;
  if (m_refillDepth == 0) fillViews();
}

void CCMDialog::fillViews() {
  m_isRefillDue = false;
  // A command may have opened the context that the provider's columns wait for.
  if (m_data->texts) m_data->texts.emplace();
  fillVisibleView();
  showRowsAnew();
  applyFilter(m_filter->text());
  // Every reset made new selection models.
  for (QTreeView* view : {m_tree, m_list}) {
    connect(view->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &CCMDialog::updateState, Qt::UniqueConnection);
  }
  m_list->header()->setSortIndicator(ViewState::sortColumn(), Qt::AscendingOrder);
}

bool CCMDialog::fillVisibleView() {
  if (ViewState::isFlat()) return orderRows();
  if (m_isTreeDue) {
    m_treeModel->beginRefill();
    m_data->tree.fill(activeProjectUnit(), m_data->units);
    m_treeModel->endRefill();
    m_isTreeDue = false;
    m_isExpandDue = true;
  }
  if (m_isExpandDue) expandTree();
  return false;
}

void CCMDialog::showRowsAnew() {
  m_tree->viewport()->update();
  // A view that is told which rows have changed looks for the place of each; it has to paint no
  // more than it shows. A filter has to look at all of them.
  if (m_list->model() == m_listModel) return m_list->viewport()->update();
  m_listModel->beginRefill();
  m_listModel->endRefill();
}

void CCMDialog::expandTree() {
  m_isExpandDue = false;
  if (m_tree->model() != m_treeModel) return m_tree->expandAll();
  // The view remembers every line that is open; the many without children need not be.
  for (std::size_t node = 0; node < m_data->tree.size(); ++node) {
    if (m_data->tree.childCount(node) > 0) m_tree->expand(m_treeModel->indexOfNode(node));
  }
}

void CCMDialog::sortItems() {
  const RefillScope once(*this);
  m_isOrderDue = m_data->texts.has_value();
  CmFillCI();
}

bool CCMDialog::orderRows() {
  if (!m_isOrderDue) return false;
  m_isOrderDue = false;
  PrepareWsList(m_data->order.byColumn(m_data->units, *m_data->texts, ViewState::sortColumn()));
  return true;
}

void CCMDialog::PrepareWsList(const std::vector<std::size_t>& order) {
  m_data->units.reorder(order);
}

void CCMDialog::OnColumnclickFlatlist(int column) {
  ViewState::setSortColumn(column);
  FlatCmSelectedItems();
  sortItems();
  CmSelectTheItems();
}

void CCMDialog::DoAfterOpRefresh() {
  m_isRefreshDue = false;
  {
    const RefillScope once(*this);
    // The same rows are selected again in the end.
    const QScopedValueRollback keeps(m_keepsSelection, true);
    updateList();
    sortItems();
    CmFillCI();
  }
  CmSelectTheItems();
  refreshOthers();
}

void CCMDialog::refresh40001() {
  // A window that a command has opened above this one lets it list anew; work does not.
  m_isRefreshDue = isRunning() && isOneAtWork();
  if (m_isRefreshDue) return m_retry.start();
  m_selection.clear();
  const RefillScope once(*this);
  updateList();
  CmFillCI();
}

void CCMDialog::applyFilter(const QString& text) {
  m_listFilter->apply(text, *m_list);
  m_treeFilter->apply(text, *m_tree);
  if (text.isEmpty()) m_isExpandDue = true;
  if (m_isExpandDue && !ViewState::isFlat()) expandTree();
  updateState();
}

// --- selection ---

std::size_t CCMDialog::GetSelectedCount() {
  return visibleView()->selectedCount();
}

QModelIndex CCMDialog::sourceOf(const QModelIndex& index) const {
  return ViewState::isFlat() ? m_listFilter->sourceOf(index) : m_treeFilter->sourceOf(index);
}

UnitList CCMDialog::CmSelectedItems() {
  return ViewState::isFlat() ? FlatCmSelectedItems() : TreeCmSelectedItems();
}

UnitList CCMDialog::FlatCmSelectedItems() {
  m_selectedRows = selectedRows(*m_list, *m_listFilter);
  m_selectedSince = m_list->selectionChanges();
  UnitList units;
  for (const int row : m_selectedRows) {
    if (IUnit* const unit = m_data->units.at(static_cast<std::size_t>(row))) units.push_back(unit);
  }
  m_selection.assign(units);
  return units;
}

UnitList CCMDialog::TreeCmSelectedItems() {
  UnitList units;
  for (const QModelIndex& index : m_tree->selectionModel()->selectedRows()) {
    const std::size_t node = UnitTreeModel::nodeOf(m_treeFilter->sourceOf(index));
    IUnit* const unit = m_data->units.atPlace(m_data->tree.unitOf(node));
    if (unit != nullptr) units.push_back(unit);
  }
  m_selectedFiles.clear();
  for (const IUnit* unit : units) m_selectedFiles.push_back(unit->getFullFileName());
  m_selection.assign(units);
  return units;
}

bool CCMDialog::SelectedAtLeastOne() {
  return allowsSelection(SelectionRule::AtLeastOne, GetSelectedCount());
}

bool CCMDialog::SelectedOnlyOne() {
  return allowsSelection(SelectionRule::OnlyOne, GetSelectedCount());
}

bool CCMDialog::SelectedOneAndOnlyOne() {
  return allowsSelection(SelectionRule::OneAndOnlyOne, GetSelectedCount());
}

bool CCMDialog::CheckForDescendentsInSelectedItems() const {
  return veldra::CheckForDescendentsInSelectedItems(m_selection.alive());
}

void CCMDialog::NewCmSelectedItem(IUnit* unit) {
  m_selection.assign({unit});
}

void CCMDialog::CmSelectTheItems() {
  if (!ViewState::isFlat()) return restoreTreeSelection();
  // Each range of a selection is known to the model; thousands take long to be replaced.
  if (m_list->selectionChanges() != m_selectedSince) {
    selectRows(*m_list, *m_listFilter, *m_listModel, m_selectedRows);
    m_selectedSince = m_list->selectionChanges();
  }
  giveFocus(*m_list);
  m_list->viewport()->update();
}

void CCMDialog::restoreTreeSelection() {
  const std::unordered_set<std::string> files(m_selectedFiles.begin(), m_selectedFiles.end());
  if (!files.empty())
    selectFiles([&files](const std::string& file) { return files.contains(file); });
  giveFocus(*m_tree);
}

void CCMDialog::selectFiles(const std::function<bool(const std::string&)>& isMeant) {
  const bool flat = ViewState::isFlat();
  std::vector<int> rows;
  QItemSelection nodes;
  for (std::size_t i = 0; i < m_data->units.size(); ++i) {
    const IUnit* const unit = m_data->units.at(i);
    if (unit == nullptr || !isMeant(unit->getFullFileName())) continue;
    if (flat) {
      rows.push_back(static_cast<int>(i));
      continue;
    }
    const std::size_t node = m_data->tree.nodeOf(m_data->units.placeAt(i));
    if (node == WorkspaceTree::None) continue;
    const QModelIndex index = m_treeFilter->shownFor(m_treeModel->indexOfNode(node));
    if (index.isValid()) nodes.append(QItemSelectionRange(index));
  }
  if (flat) return selectRows(*m_list, *m_listFilter, *m_listModel, rows);
  setSelection(*m_tree, nodes);
  if (!nodes.isEmpty()) m_tree->scrollTo(nodes.first().topLeft());
}

// --- what stands around the views ---

void CCMDialog::updateState() {
  const bool isEmpty = m_data->units.empty();
  const bool flat = ViewState::isFlat();
  m_tree->setVisible(!flat && !isEmpty);
  m_list->setVisible(flat && !isEmpty);
  m_empty->setVisible(isEmpty);
  m_filter->setVisible(!isEmpty);
  if (isEmpty) {
    m_empty->setText(activeProjectUnit() == nullptr
                         ? tr("No project is open. Open one, then come back here.")
                         : tr("This project has no units with files of their own yet. Save the "
                              "model, then add its units to the archive."));
    totals().clear();
    return;
  }
  const int all = static_cast<int>(m_data->units.size());
  const int selected = static_cast<int>(GetSelectedCount());
  const bool filtered = m_list->model() != m_listModel;
  const int visible = filtered ? m_list->model()->rowCount() : all;
  const QString units =
      filtered ? tr("%1 of %n unit(s)", nullptr, all).arg(visible) : tr("%n unit(s)", nullptr, all);
  totals().setText(tr("%1, %n selected", nullptr, selected).arg(units));
}

}  // namespace veldra
