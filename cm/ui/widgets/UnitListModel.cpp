#include "cm/ui/widgets/UnitListModel.h"

#include "cm/host/MessageIds.h"
#include "cm/ui/Icons.h"
#include "cm/ui/widgets/Text.h"

namespace veldra {

UnitListModel::UnitListModel(const WorkspaceData& data, QObject* parent)
    : QAbstractTableModel(parent), m_data(data) {}

void UnitListModel::setColumns(int count) {
  beginResetModel();
  m_columns = count;
  endResetModel();
}

int UnitListModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(m_data.units.size());
}

int UnitListModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : m_columns;
}

QVariant UnitListModel::data(const QModelIndex& index, int role) const {
  const IUnit* const unit = m_data.visibleUnit(static_cast<std::size_t>(index.row()));
  if (unit == nullptr) return {};
  switch (role) {
    case Qt::DisplayRole:
      return shown(m_data.texts->cell(*unit, index.column()));
    case Qt::ToolTipRole:
      return index.column() == UnitColumn::File ? plainTip(shown(unit->getFullFileName()))
                                                : QVariant();
    case Qt::DecorationRole:
      return index.column() == UnitColumn::File ? QVariant(unitIcon(*unit)) : QVariant();
    default:
      return {};
  }
}

QVariant UnitListModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal) return {};
  if (role == Qt::DisplayRole) return hostText(MessageId::ColumnHeader + section);
  if (role == Qt::TextAlignmentRole) return static_cast<int>(Qt::AlignLeft | Qt::AlignVCenter);
  return {};
}

}  // namespace veldra
