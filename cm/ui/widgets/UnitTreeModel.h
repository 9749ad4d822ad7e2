#pragma once

#include <QAbstractItemModel>

#include "cm/ui/widgets/WorkspaceData.h"

namespace veldra {

/// The tree: the project as root, below it the units as the model owns them.
class UnitTreeModel : public QAbstractItemModel {
  Q_OBJECT

 public:
  /// `data` must outlive the model; between `beginRefill` and `endRefill` it may be changed.
  explicit UnitTreeModel(const WorkspaceData& data, QObject* parent = nullptr);

  void beginRefill() { beginResetModel(); }
  void endRefill() { endResetModel(); }
  QModelIndex indexOfNode(std::size_t node) const;
  static std::size_t nodeOf(const QModelIndex& index) { return index.internalId(); }

  QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
  QModelIndex parent(const QModelIndex& child) const override;
  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex&) const override { return 1; }
  bool hasChildren(const QModelIndex& parent) const override { return rowCount(parent) > 0; }
  QVariant data(const QModelIndex& index, int role) const override;

 private:
  const IUnit* unitOf(const QModelIndex& index) const;

  const WorkspaceData& m_data;
};

}  // namespace veldra
