#include "cm/ui/widgets/ItemListModel.h"

#include "cm/core/CMArchiveItem.h"
#include "cm/ui/Icons.h"
#include "cm/ui/widgets/Text.h"

namespace veldra {

int ItemListModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(m_rows->size());
}

int ItemListModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : m_rows->columnCount();
}

QVariant ItemListModel::data(const QModelIndex& index, int role) const {
  const auto row = static_cast<std::size_t>(index.row());
  switch (role) {
    case Qt::DisplayRole:
      return shown(m_rows->cell(row, index.column()));
    case Qt::ToolTipRole:
      return index.column() == 0 ? plainTip(shown(m_rows->item(row).getFileNameWithPath()))
                                 : QVariant();
    case Qt::DecorationRole:
      return index.column() == 0 ? QVariant(itemIcon(m_rows->item(row))) : QVariant();
    default:
      return {};
  }
}

QVariant ItemListModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal) return {};
  if (role == Qt::DisplayRole) return shown(m_rows->header(section));
  if (role == Qt::TextAlignmentRole) return static_cast<int>(Qt::AlignLeft | Qt::AlignVCenter);
  return {};
}

}  // namespace veldra
