#pragma once

#include <QTreeView>
#include <cstddef>
#include <optional>

namespace veldra {

/// A list or tree of lines that are selected as a whole.
///
/// Qt copies every range of a selection to tell anything about it, which takes long when somebody
/// has picked thousands of lines. What is asked after every command is kept here.
class LineView : public QTreeView {
  Q_OBJECT

 public:
  using QTreeView::QTreeView;

  /// How many lines are selected.
  std::size_t selectedCount() const;
  /// As long as it stays the same, the same lines are selected.
  std::size_t selectionChanges() const { return m_selectionChanges; }

  void reset() override;

 protected:
  void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;
  void drawBranches(QPainter* painter, const QRect& place, const QModelIndex& index) const override;

 private:
  mutable std::optional<std::size_t> m_selectedCount;  ///< Nothing until it is asked for.
  std::size_t m_selectionChanges = 0;
};

}  // namespace veldra
