#include <QAbstractItemDelegate>
#include <QHeaderView>
#include <QPainter>
#include <vector>

#include "cm/ui/widgets/LineView.h"

namespace veldra {

namespace {

/// The columns that have a place in the view, in the order in which they stand.
std::vector<int> shownColumns(const QHeaderView& header) {
  std::vector<int> columns;
  for (int place = 0; place < header.count(); ++place) {
    const int column = header.logicalIndex(place);
    if (!header.isSectionHidden(column)) columns.push_back(column);
  }
  return columns;
}

QStyleOptionViewItem::ViewItemPosition positionOf(std::size_t place, std::size_t count) {
  if (count == 1) return QStyleOptionViewItem::OnlyOne;
  if (place == 0) return QStyleOptionViewItem::Beginning;
  return place + 1 == count ? QStyleOptionViewItem::End : QStyleOptionViewItem::Middle;
}

}  // namespace

void LineView::drawRow(QPainter* painter, const QStyleOptionViewItem& option,
                       const QModelIndex& index) const {
  if (!isList()) return QTreeView::drawRow(painter, option, index);
  QStyleOptionViewItem line = option;
  line.rect.translate(dirtyRegionOffset());
  drawCells(painter, cellOption(line, index.row()), index);
  if (hasFocus() && currentIndex().row() == index.row()) {
    drawFocus(painter, line, isSelected(index.row()));
  }
}

QStyleOptionViewItem LineView::cellOption(const QStyleOptionViewItem& line, int row) const {
  QStyleOptionViewItem cell = line;
  cell.showDecorationSelected = true;
  cell.features.setFlag(QStyleOptionViewItem::Alternate, alternatingRowColors() && row % 2 != 0);
  cell.state.setFlag(QStyle::State_Selected, isSelected(row));
  cell.state.setFlag(QStyle::State_MouseOver, m_hovered.isValid() && m_hovered.row() == row);
  if (cell.state.testFlag(QStyle::State_Enabled)) {
    const bool isActive = cell.state.testFlag(QStyle::State_Active);
    cell.palette.setCurrentColorGroup(isActive ? QPalette::Active : QPalette::Inactive);
  }
  return cell;
}

void LineView::drawCells(QPainter* painter, QStyleOptionViewItem cell,
                         const QModelIndex& index) const {
  const std::vector<int> columns = shownColumns(*header());
  for (std::size_t place = 0; place < columns.size(); ++place) {
    const int column = columns[place];
    cell.rect.setLeft(columnViewportPosition(column));
    cell.rect.setWidth(columnWidth(column));
    if (!cell.rect.intersects(viewport()->rect())) continue;
    cell.viewItemPosition = positionOf(place, columns.size());
    QStyleOptionViewItem background = cell;
    // That the line is selected is the delegate's to show.
    background.state.setFlag(QStyle::State_Selected, false);
    style()->drawPrimitive(QStyle::PE_PanelItemViewRow, &background, painter, this);
    const QModelIndex content = index.siblingAtColumn(column);
    itemDelegateForIndex(content)->paint(painter, cell, content);
  }
}

void LineView::drawFocus(QPainter* painter, const QStyleOptionViewItem& line,
                         bool isLineSelected) const {
  QStyleOptionFocusRect focus;
  focus.QStyleOption::operator=(line);
  focus.state |= QStyle::State_KeyboardFocusChange;
  focus.backgroundColor =
      line.palette.color(isLineSelected ? QPalette::Highlight : QPalette::Window);
  const QRect cells(-header()->offset(), line.rect.top(), header()->length(), line.rect.height());
  focus.rect = QStyle::visualRect(layoutDirection(), viewport()->rect(), cells);
  style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, painter);
}

}  // namespace veldra
