#include "host/desktop/DarkStyle.h"

#include <QPainter>
#include <QProxyStyle>
#include <QStyleOption>
#include <QWidget>

namespace veldra::host::desktop {
namespace {

/// Seen on a dark window without drawing the eye to itself.
constexpr QRgb Outline = qRgb(0x6b, 0x74, 0x80);
constexpr double Faint = 0.5;
constexpr double Roundness = 2;

void outline(const QStyleOption& option, double radius, QPainter& painter) {
  const bool hasFocus = option.state.testFlag(QStyle::State_HasFocus);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(hasFocus ? option.palette.color(QPalette::Highlight) : QColor(Outline));
  if (!option.state.testFlag(QStyle::State_Enabled)) painter.setOpacity(Faint);
  const QRectF frame = QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5);
  painter.drawRoundedRect(frame, radius, radius);
  painter.restore();
}

QIcon inColour(const QIcon& drawing, const QSize& size, const QWidget& widget) {
  QPixmap picture = drawing.pixmap(size, widget.devicePixelRatio());
  QPainter painter(&picture);
  painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
  painter.fillRect(picture.rect(), widget.palette().buttonText());
  return picture;
}

class DarkStyle : public QProxyStyle {
 public:
  DarkStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                          QPainter* painter, const QWidget* widget) const override;
};

void DarkStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                              QPainter* painter, const QWidget* widget) const {
  QProxyStyle::drawPrimitive(element, option, painter, widget);
  if (element == PE_FrameLineEdit) outline(*option, Roundness, *painter);
  if (element == PE_IndicatorCheckBox || element == PE_Frame) outline(*option, 0, *painter);
}

void DarkStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                   QPainter* painter, const QWidget* widget) const {
  const auto* const button = qstyleoption_cast<const QStyleOptionToolButton*>(option);
  // Qt's name for it.
  if (button == nullptr || widget == nullptr ||
      widget->objectName() != QLatin1String("qt_toolbar_ext_button")) {
    return QProxyStyle::drawComplexControl(control, option, painter, widget);
  }
  QStyleOptionToolButton seen = *button;
  seen.icon = inColour(button->icon, button->iconSize, *widget);
  QProxyStyle::drawComplexControl(control, &seen, painter, widget);
}

}  // namespace

std::unique_ptr<QStyle> makeDarkStyle() {
  return std::make_unique<DarkStyle>();
}

}  // namespace veldra::host::desktop
