#pragma once

#include <QGraphicsView>
#include <vector>

#include "host/desktop/logic/UnitSheet.h"

namespace veldra::host::desktop {

/// The boxes and lines of a diagram. Boxes are moved by mouse or by the arrow keys.
class DiagramView : public QGraphicsView {
  Q_OBJECT

 public:
  explicit DiagramView(QWidget* parent = nullptr);

  void showSheet(const UnitSheet& sheet, bool isEditable);
  /// The boxes where they stand now.
  const std::vector<SheetBox>& boxes() const { return m_boxes; }
  /// The selected boxes' places in `boxes`, the last one first.
  std::vector<std::size_t> selectedBoxes() const;

 signals:
  void boxesMoved();
  void boxActivated(std::size_t box);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void build();
  void drawLines();
  void addBox(std::size_t index);
  bool takePositions();
  void moveSelected(double x, double y);

  QGraphicsScene m_scene;
  std::vector<SheetBox> m_boxes;
  std::vector<SheetConnection> m_connections;
  std::vector<QGraphicsRectItem*> m_items;
  std::vector<QGraphicsItem*> m_lines;
  bool m_isEditable = false;
};

}  // namespace veldra::host::desktop
