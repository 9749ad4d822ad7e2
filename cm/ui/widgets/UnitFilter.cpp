#include "cm/ui/widgets/UnitFilter.h"

namespace veldra {

UnitFilter::UnitFilter(QAbstractItemModel* source, QObject* parent)
    : QSortFilterProxyModel(parent), m_source(source) {
  setRecursiveFilteringEnabled(true);
}

void UnitFilter::apply(const QString& text, QTreeView& view) {
  m_text = text;
  m_isActive = !text.isEmpty();
  if (m_isActive) {
    if (sourceModel() == nullptr) setSourceModel(m_source);
    invalidateFilter();
    if (view.model() != this) view.setModel(this);
    view.expandAll();
  } else {
    if (view.model() != m_source) view.setModel(m_source);
    if (sourceModel() != nullptr) setSourceModel(nullptr);
  }
}

QModelIndex UnitFilter::sourceOf(const QModelIndex& index) const {
  return index.model() == this ? mapToSource(index) : index;
}

QModelIndex UnitFilter::shownFor(const QModelIndex& source) const {
  return m_isActive ? mapFromSource(source) : source;
}

bool UnitFilter::filterAcceptsRow(int row, const QModelIndex& parent) const {
  for (int column = 0; column < sourceModel()->columnCount(parent); ++column) {
    const QModelIndex cell = sourceModel()->index(row, column, parent);
    if (cell.data().toString().contains(m_text, Qt::CaseInsensitive)) return true;
  }
  return false;
}

}  // namespace veldra
