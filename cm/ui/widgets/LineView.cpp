#include "cm/ui/widgets/LineView.h"

#include <QHoverEvent>
#include <QItemSelectionModel>
#include <algorithm>

namespace veldra {

LineView::LineView(QWidget* parent) : QTreeView(parent) {
  setAllColumnsShowFocus(true);
}

std::size_t LineView::selectedCount() const {
  if (isList()) return selectedRows().size();
  if (!m_selectedCount) {
    std::size_t count = 0;
    for (const QItemSelectionRange& range : selectionModel()->selection()) {
      count += static_cast<std::size_t>(range.height());
    }
    m_selectedCount = count;
  }
  return *m_selectedCount;
}

const std::vector<int>& LineView::selectedRows() const {
  if (!m_selectedRows) {
    std::vector<int> rows;
    for (const QItemSelectionRange& range : selectionModel()->selection()) {
      for (int row = range.top(); row <= range.bottom(); ++row) rows.push_back(row);
    }
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    m_selectedRows = std::move(rows);
  }
  return *m_selectedRows;
}

bool LineView::isSelected(int row) const {
  const std::vector<int>& rows = selectedRows();
  return std::binary_search(rows.begin(), rows.end(), row);
}

void LineView::forgetSelected() {
  m_selectedCount.reset();
  m_selectedRows.reset();
}

void LineView::reset() {
  QTreeView::reset();
  // A selection that goes with its model says nothing.
  forgetSelected();
  ++m_selectionChanges;
}

void LineView::doItemsLayout() {
  // Selected rows that stand elsewhere now say nothing either.
  forgetSelected();
  QTreeView::doItemsLayout();
}

void LineView::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
  forgetSelected();
  ++m_selectionChanges;
  QTreeView::selectionChanged(selected, deselected);
}

bool LineView::viewportEvent(QEvent* event) {
  switch (event->type()) {
    case QEvent::HoverEnter:
    case QEvent::HoverMove:
      m_hovered = indexAt(static_cast<QHoverEvent*>(event)->position().toPoint());
      break;
    case QEvent::HoverLeave:
    case QEvent::Leave:
      m_hovered = QModelIndex();
      break;
    default:
      break;
  }
  return QTreeView::viewportEvent(event);
}

}  // namespace veldra
