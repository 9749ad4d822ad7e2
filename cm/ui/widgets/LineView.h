#pragma once

#include <QPersistentModelIndex>
#include <QTreeView>
#include <cstddef>
#include <optional>
#include <vector>

namespace veldra {

/// A list or tree of lines that are selected as a whole.
///
/// Qt looks through every range of a selection to tell anything about it, which takes long when
/// somebody has picked thousands of lines. What is asked after every command, or for every line
/// that is painted, is kept here.
class LineView : public QTreeView {
  Q_OBJECT

 public:
  explicit LineView(QWidget* parent = nullptr);

  /// How many lines are selected.
  std::size_t selectedCount() const;
  /// The selected rows of a list, ascending.
  const std::vector<int>& selectedRows() const;
  /// As long as it stays the same, the same lines are selected.
  std::size_t selectionChanges() const { return m_selectionChanges; }

  void reset() override;
  void doItemsLayout() override;

 protected:
  void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;
  bool viewportEvent(QEvent* event) override;
  void drawRow(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;

 private:
  bool isList() const { return !rootIsDecorated(); }
  bool isSelected(int row) const;
  void forgetSelected();
  QStyleOptionViewItem cellOption(const QStyleOptionViewItem& line, int row) const;
  void drawCells(QPainter* painter, QStyleOptionViewItem cell, const QModelIndex& index) const;
  void drawFocus(QPainter* painter, const QStyleOptionViewItem& line, bool isLineSelected) const;

  // Nothing until they are asked for.
  mutable std::optional<std::size_t> m_selectedCount;
  mutable std::optional<std::vector<int>> m_selectedRows;
  std::size_t m_selectionChanges = 0;
  QPersistentModelIndex m_hovered;  ///< Below the mouse.
};

}  // namespace veldra
