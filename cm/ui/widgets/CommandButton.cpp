#include "cm/ui/widgets/CommandButton.h"

#include <QEvent>
#include <QKeySequence>
#include <QPainter>

#include "cm/ui/Icons.h"
#include "cm/ui/widgets/Control.h"
#include "cm/ui/widgets/Text.h"

namespace veldra {

namespace {
constexpr int PictureSize = 24;
constexpr int Padding = 7;
constexpr int SmallestWidth = 60;
constexpr int LargestWidth = 132;
}  // namespace

CommandButton::CommandButton(const ButtonFace& face, QWidget* parent)
    : QAbstractButton(parent), m_command(face.picture) {
  setFocusPolicy(Qt::StrongFocus);
  setAttribute(Qt::WA_Hover);
  setIconSize({PictureSize, PictureSize});
  control(this, face.controlId, {});
  show(face);
}

void CommandButton::show(const ButtonFace& face) {
  const QString caption = shown(face.caption);
  const QKeySequence shortcut(QString::fromLatin1(face.shortcut));
  const QString keys = shortcut.toString(QKeySequence::NativeText);
  const QString tip = shown(face.tooltip);
  setText(caption);
  setShortcut(shortcut);
  setAccessibleName(caption);
  setAccessibleDescription(tip);
  const QString shownTip = keys.isEmpty() ? tip : QStringLiteral("%1 (%2)").arg(tip, keys);
  setToolTip(plainTip(shownTip));
  setIcon(commandIcon(face.picture));
  setVisible(face.isShown);
}

QSize CommandButton::sizeHint() const {
  const QFontMetrics metrics = fontMetrics();
  const int width = metrics.horizontalAdvance(text()) + 2 * Padding;
  return {qBound(SmallestWidth, width, LargestWidth),
          PictureSize + metrics.height() + 2 * Padding + 3};
}

QIcon::Mode CommandButton::pictureMode() const {
  if (!isEnabled()) return QIcon::Disabled;
  if (isDown()) return QIcon::Selected;
  return hasFocus() ? QIcon::Active : QIcon::Normal;
}

void CommandButton::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF frame = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
  QColor fill = palette().color(QPalette::Highlight);
  fill.setAlphaF(isDown() ? 0.25F : 0.10F);
  const bool isLit = isEnabled() && (isDown() || underMouse());
  painter.setPen(hasFocus() ? QPen(palette().color(QPalette::Highlight), 1.5) : QPen(Qt::NoPen));
  painter.setBrush(isLit ? QBrush(fill) : QBrush(Qt::NoBrush));
  if (isLit || hasFocus()) painter.drawRoundedRect(frame, 6, 6);

  const QRect picture((width() - PictureSize) / 2, Padding, PictureSize, PictureSize);
  icon().paint(&painter, picture, Qt::AlignCenter, pictureMode());
  const auto group = isEnabled() ? QPalette::Active : QPalette::Disabled;
  painter.setPen(palette().color(group, QPalette::ButtonText));
  const QRect line(3, picture.bottom() + 4, width() - 6, fontMetrics().height());
  painter.drawText(line, Qt::AlignCenter,
                   fontMetrics().elidedText(text(), Qt::ElideRight, line.width()));
}

void CommandButton::enterEvent(QEnterEvent* event) {
  QAbstractButton::enterEvent(event);
  update();
}

void CommandButton::leaveEvent(QEvent* event) {
  QAbstractButton::leaveEvent(event);
  update();
}

void CommandButton::changeEvent(QEvent* event) {
  QAbstractButton::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) update();
}

}  // namespace veldra
