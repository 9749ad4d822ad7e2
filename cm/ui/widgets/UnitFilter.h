#pragma once

#include <QSortFilterProxyModel>
#include <QTreeView>

namespace veldra {

/// Shows the lines that contain a text in any column, and in a tree the lines above them. The view
/// looks through it only while there is a text.
class UnitFilter : public QSortFilterProxyModel {
  Q_OBJECT

 public:
  UnitFilter(QAbstractItemModel* source, QObject* parent);

  void apply(const QString& text, QTreeView& view);
  /// The line of the source behind a line of the view, which may show either model.
  QModelIndex sourceOf(const QModelIndex& index) const;
  /// The view's line for one of the source.
  QModelIndex shownFor(const QModelIndex& source) const;

 protected:
  bool filterAcceptsRow(int row, const QModelIndex& parent) const override;

 private:
  QAbstractItemModel* m_source;
  QString m_text;
  bool m_isActive = false;
};

}  // namespace veldra
