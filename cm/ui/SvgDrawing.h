#pragma once

#include <QByteArray>
#include <QRectF>

#include "cm/ui/Export.h"

class QPainter;

namespace veldra {

/// Whether this was built with Qt's library for SVG. Without it there are no icons of our own, and
/// buttons show their words.
VELDRA_CM_UI_EXPORT bool canDrawSvg();

/// Draws an SVG into a place, in its own proportions. Nothing when it is damaged.
VELDRA_CM_UI_EXPORT void drawSvg(const QByteArray& svg, QPainter& painter, const QRectF& place);

}  // namespace veldra
