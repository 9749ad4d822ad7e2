#pragma once

#include <QAbstractTableModel>

#include "cm/ui/widgets/WorkspaceData.h"

namespace veldra {

/// The flat list: one row per unit of the workspace, in its order.
class UnitListModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  /// `data` must outlive the model; between `beginRefill` and `endRefill` it may be changed.
  explicit UnitListModel(const WorkspaceData& data, QObject* parent = nullptr);

  void setColumns(int count);
  void beginRefill() { beginResetModel(); }
  void endRefill() { endResetModel(); }

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  const WorkspaceData& m_data;
  int m_columns = UnitColumn::Controlled;
};

}  // namespace veldra
