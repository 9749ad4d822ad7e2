#pragma once

#include <QAbstractTableModel>
#include <memory>
#include <utility>

#include "cm/ui/logic/ItemRows.h"

namespace veldra {

/// A list of archive items; nothing is copied per row.
class ItemListModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  /// The model keeps the rows alive, because a view still asks it while its window goes. Between
  /// `beginRefill` and `endRefill` they may be changed.
  explicit ItemListModel(std::shared_ptr<const ItemRows> rows, QObject* parent = nullptr)
      : QAbstractTableModel(parent), m_rows(std::move(rows)) {}

  void beginRefill() { beginResetModel(); }
  void endRefill() { endResetModel(); }

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  std::shared_ptr<const ItemRows> m_rows;
};

}  // namespace veldra
