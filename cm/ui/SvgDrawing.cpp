#include "cm/ui/SvgDrawing.h"

#if defined(VELDRA_HAS_SVG)

#include <QSvgRenderer>

namespace veldra {

bool canDrawSvg() {
  return true;
}

SvgDrawing::SvgDrawing(const QByteArray& svg) : m_renderer(std::make_shared<QSvgRenderer>(svg)) {
  m_renderer->setAspectRatioMode(Qt::KeepAspectRatio);
}

void SvgDrawing::draw(QPainter& painter, const QRectF& place) const {
  if (m_renderer->isValid()) m_renderer->render(&painter, place);
}

}  // namespace veldra

#else

namespace veldra {

bool canDrawSvg() {
  return false;
}

SvgDrawing::SvgDrawing(const QByteArray&) {}

void SvgDrawing::draw(QPainter&, const QRectF&) const {}

}  // namespace veldra

#endif
