#pragma once

#include <QAbstractItemModel>
#include <memory>
#include <string>

#include "host/desktop/logic/ModelOutline.h"

namespace veldra::host::desktop {

/// The outline of the open project as an item model.
class ModelTreeModel : public QAbstractItemModel {
  Q_OBJECT

 public:
  enum Column { Name, Version, Holder, ColumnCount };

  using QAbstractItemModel::QAbstractItemModel;

  /// Null shows nothing.
  void setOutline(std::unique_ptr<OutlineNode> root);
  const OutlineNode* node(const QModelIndex& index) const;
  /// The first line of that path below the project, or an invalid index.
  QModelIndex indexOfPath(const std::string& path) const;

  QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
  QModelIndex parent(const QModelIndex& index) const override;
  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  QModelIndex indexOf(const OutlineNode& node) const;
  static QString toolTip(const OutlineNode& node);

  std::unique_ptr<OutlineNode> m_root;
};

/// How a line's file stands, in words.
QString accessText(const OutlineNode& node);

}  // namespace veldra::host::desktop
