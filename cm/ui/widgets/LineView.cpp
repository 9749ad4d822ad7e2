#include "cm/ui/widgets/LineView.h"

#include <QItemSelectionModel>

namespace veldra {

std::size_t LineView::selectedCount() const {
  if (!m_selectedCount) {
    std::size_t count = 0;
    for (const QItemSelectionRange& range : selectionModel()->selection()) {
      count += static_cast<std::size_t>(range.height());
    }
    m_selectedCount = count;
  }
  return *m_selectedCount;
}

void LineView::reset() {
  QTreeView::reset();
  // A selection that goes with its model says nothing.
  m_selectedCount.reset();
  ++m_selectionChanges;
}

void LineView::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
  m_selectedCount.reset();
  ++m_selectionChanges;
  QTreeView::selectionChanged(selected, deselected);
}

void LineView::drawBranches(QPainter* painter, const QRect& place, const QModelIndex& index) const {
  // A list has none, but Qt would look for the line among all that are selected.
  if (rootIsDecorated()) QTreeView::drawBranches(painter, place, index);
}

}  // namespace veldra
