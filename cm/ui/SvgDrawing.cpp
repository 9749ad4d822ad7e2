#include "cm/ui/SvgDrawing.h"

#if defined(VELDRA_HAS_SVG)

#include <QSvgRenderer>

namespace veldra {

bool canDrawSvg() {
  return true;
}

void drawSvg(const QByteArray& svg, QPainter& painter, const QRectF& place) {
  QSvgRenderer renderer(svg);
  renderer.setAspectRatioMode(Qt::KeepAspectRatio);
  if (renderer.isValid()) renderer.render(&painter, place);
}

}  // namespace veldra

#else

namespace veldra {

bool canDrawSvg() {
  return false;
}

void drawSvg(const QByteArray&, QPainter&, const QRectF&) {}

}  // namespace veldra

#endif
