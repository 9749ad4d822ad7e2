#pragma once

#include <QByteArray>
#include <QRectF>
#include <memory>

#include "cm/ui/Export.h"

class QPainter;
class QSvgRenderer;

namespace veldra {

/// Whether this was built with Qt's library for SVG. Without it there are no icons of our own, and
/// buttons show their words.
VELDRA_CM_UI_EXPORT bool canDrawSvg();

/// An SVG that was read once and can be drawn in any size.
class VELDRA_CM_UI_EXPORT SvgDrawing {
 public:
  explicit SvgDrawing(const QByteArray& svg);
  /// Draws it into a place, in its own proportions. Nothing when it is damaged.
  void draw(QPainter& painter, const QRectF& place) const;

 private:
  std::shared_ptr<QSvgRenderer> m_renderer;
};

}  // namespace veldra
