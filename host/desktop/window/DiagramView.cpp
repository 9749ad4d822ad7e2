#include "host/desktop/window/DiagramView.h"

#include <QApplication>
#include <QGraphicsRectItem>
#include <QKeyEvent>
#include <QPalette>
#include <QTextDocument>
#include <algorithm>
#include <cmath>

#include "host/desktop/Text.h"

namespace veldra::host::desktop {
namespace {

constexpr double Grid = 10;
constexpr double Margin = 40;

QPointF centre(const QGraphicsRectItem& item) {
  return item.mapToScene(item.rect().center());
}

/// Where the line from a box's centre to a point leaves the box.
QPointF borderTowards(const QGraphicsRectItem& item, const QPointF& target) {
  const QPointF from = centre(item);
  const QPointF way = target - from;
  const double x = std::abs(way.x()) > 0 ? item.rect().width() / 2 / std::abs(way.x()) : 1e9;
  const double y = std::abs(way.y()) > 0 ? item.rect().height() / 2 / std::abs(way.y()) : 1e9;
  return from + way * std::min({x, y, 1.0});
}

QPolygonF arrowHead(const QLineF& line) {
  constexpr double Length = 9;
  QLineF left = QLineF(line.p2(), line.p1());
  left.setLength(Length);
  QLineF right = left;
  left.setAngle(left.angle() + 24);
  right.setAngle(right.angle() - 24);
  return {{line.p2(), left.p2(), right.p2()}};
}

}  // namespace

DiagramView::DiagramView(QWidget* parent) : QGraphicsView(parent) {
  setScene(&m_scene);
  setRenderHint(QPainter::Antialiasing);
  setDragMode(RubberBandDrag);
  setFrameShape(NoFrame);
  setAccessibleName(tr("Diagram"));
  setAccessibleDescription(tr("The space bar goes from box to box, the arrow keys move a box."));
}

void DiagramView::showSheet(const UnitSheet& sheet, bool isEditable) {
  m_boxes = sheet.boxes;
  m_connections = sheet.connections;
  m_isEditable = isEditable;
  build();
}

void DiagramView::build() {
  m_items.clear();
  m_lines.clear();
  m_scene.clear();
  for (std::size_t i = 0; i < m_boxes.size(); ++i) addBox(i);
  drawLines();
  m_scene.setSceneRect(m_scene.itemsBoundingRect().adjusted(-Margin, -Margin, Margin, Margin));
}

void DiagramView::addBox(std::size_t index) {
  const SheetBox& box = m_boxes[index];
  const double width = box.width > 0 ? box.width : 120;
  const double height = box.height > 0 ? box.height : 60;
  const QPalette palette = QApplication::palette();
  auto* item = m_scene.addRect(0, 0, width, height, QPen(palette.color(QPalette::Highlight), 1.4),
                               palette.color(QPalette::AlternateBase));
  item->setPos(box.x, box.y);
  item->setZValue(1);
  item->setFlag(QGraphicsItem::ItemIsSelectable);
  item->setFlag(QGraphicsItem::ItemIsMovable, m_isEditable);
  item->setToolTip(plainTip(shownName(box.element)));
  auto* label = new QGraphicsTextItem(item);
  label->setPlainText(shownName(box.element));
  label->setDefaultTextColor(palette.color(QPalette::Text));
  label->setTextWidth(width);
  QTextOption option(Qt::AlignCenter);
  option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  label->document()->setDefaultTextOption(option);
  label->setPos(0, std::max(0.0, (height - label->boundingRect().height()) / 2));
  m_items.push_back(item);
}

void DiagramView::drawLines() {
  for (QGraphicsItem* line : m_lines) delete line;
  m_lines.clear();
  const QColor ink = QApplication::palette().color(QPalette::Text);
  const auto itemOf = [this](const std::string& element) -> QGraphicsRectItem* {
    const auto at = std::ranges::find(m_boxes, element, &SheetBox::element);
    return at == m_boxes.end() ? nullptr : m_items[static_cast<std::size_t>(at - m_boxes.begin())];
  };
  for (const SheetConnection& connection : m_connections) {
    const QGraphicsRectItem* from = itemOf(connection.from);
    const QGraphicsRectItem* to = itemOf(connection.to);
    if (!from || !to || from == to) continue;
    const QLineF line(borderTowards(*from, centre(*to)), borderTowards(*to, centre(*from)));
    m_lines.push_back(m_scene.addLine(line, QPen(ink, 1.2)));
    m_lines.push_back(m_scene.addPolygon(arrowHead(line), QPen(ink), ink));
    if (connection.text.empty()) continue;
    auto* text = m_scene.addSimpleText(shownName(connection.text));
    text->setBrush(ink);
    const QSizeF size = text->boundingRect().size();
    const bool isFlat = std::abs(line.dx()) > std::abs(line.dy());
    text->setPos(line.center() + (isFlat ? QPointF(-size.width() / 2, -size.height() - 2)
                                         : QPointF(6, -size.height() / 2)));
    m_lines.push_back(text);
  }
}

std::vector<std::size_t> DiagramView::selectedBoxes() const {
  std::vector<std::size_t> selected;
  for (std::size_t i = m_items.size(); i-- > 0;) {
    if (m_items[i]->isSelected()) selected.push_back(i);
  }
  return selected;
}

bool DiagramView::takePositions() {
  bool isMoved = false;
  for (std::size_t i = 0; i < m_items.size(); ++i) {
    const QPointF at(std::round(m_items[i]->x() / Grid) * Grid,
                     std::round(m_items[i]->y() / Grid) * Grid);
    SheetBox& box = m_boxes[i];
    // A box off the grid stays there until it is moved itself.
    if (m_items[i]->pos() == QPointF(box.x, box.y)) continue;
    m_items[i]->setPos(at);
    box.x = at.x();
    box.y = at.y();
    isMoved = true;
  }
  if (isMoved) drawLines();
  return isMoved;
}

void DiagramView::moveSelected(double x, double y) {
  for (const std::size_t index : selectedBoxes()) m_items[index]->moveBy(x, y);
  if (takePositions()) emit boxesMoved();
}

void DiagramView::keyPressEvent(QKeyEvent* event) {
  const bool isArrow = event->key() >= Qt::Key_Left && event->key() <= Qt::Key_Down;
  if (isArrow && m_isEditable && !selectedBoxes().empty()) {
    const int key = event->key();
    moveSelected(key == Qt::Key_Left    ? -Grid
                 : key == Qt::Key_Right ? Grid
                                        : 0,
                 key == Qt::Key_Up     ? -Grid
                 : key == Qt::Key_Down ? Grid
                                       : 0);
    return;
  }
  if ((event->key() == Qt::Key_Space || event->key() == Qt::Key_N) && !m_items.empty()) {
    const std::vector<std::size_t> selected = selectedBoxes();
    const std::size_t next = selected.empty() ? 0 : (selected.front() + 1) % m_items.size();
    m_scene.clearSelection();
    m_items[next]->setSelected(true);
    ensureVisible(m_items[next]);
    return;
  }
  if (event->key() == Qt::Key_Return && !selectedBoxes().empty()) {
    emit boxActivated(selectedBoxes().front());
    return;
  }
  QGraphicsView::keyPressEvent(event);
}

void DiagramView::mouseReleaseEvent(QMouseEvent* event) {
  QGraphicsView::mouseReleaseEvent(event);
  if (takePositions()) emit boxesMoved();
}

void DiagramView::mouseDoubleClickEvent(QMouseEvent* event) {
  QGraphicsView::mouseDoubleClickEvent(event);
  if (!selectedBoxes().empty()) emit boxActivated(selectedBoxes().front());
}

void DiagramView::changeEvent(QEvent* event) {
  QGraphicsView::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) build();
}

}  // namespace veldra::host::desktop
