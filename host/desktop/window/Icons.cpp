#include "host/desktop/window/Icons.h"

#include <QApplication>
#include <QFile>
#include <QHash>
#include <QPainter>
#include <QPalette>

#include "cm/ui/SvgDrawing.h"
#include "host/desktop/Text.h"

namespace veldra::host::desktop {
namespace {

constexpr int Sizes[] = {16, 20, 24, 32, 48, 64};

struct Badge {
  const char* letter;
  QColor colour;
};

/// The drawing with its ink in this colour.
QByteArray drawing(const QString& name, const QColor& ink) {
  QFile file(":/veldra/icons/" + name + ".svg");
  if (!file.open(QIODevice::ReadOnly)) return {};
  return file.readAll().replace("currentColor", ink.name().toUtf8());
}

QPixmap drawn(const QByteArray& svg, int size) {
  QPixmap pixmap(size, size);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  SvgDrawing(svg).draw(painter, pixmap.rect());
  return pixmap;
}

/// The picture in every size, and with what `finish` adds to each.
template <class Finish>
void addPictures(const QString& name, const QColor& ink, QIcon::Mode mode, QIcon& icon,
                 Finish finish) {
  const QByteArray svg = drawing(name, ink);
  for (const int size : Sizes) icon.addPixmap(finish(drawn(svg, size)), mode);
}

/// For every state that the palette has a colour for.
template <class Finish>
void addAllPictures(const QString& name, QIcon& icon, Finish finish) {
  const QPalette palette = QApplication::palette();
  addPictures(name, palette.color(QPalette::Active, QPalette::ButtonText), QIcon::Normal, icon,
              finish);
  addPictures(name, palette.color(QPalette::Disabled, QPalette::ButtonText), QIcon::Disabled, icon,
              finish);
  addPictures(name, palette.color(QPalette::HighlightedText), QIcon::Selected, icon, finish);
}

QHash<QString, QIcon>& cache() {
  static QHash<QString, QIcon> icons;
  return icons;
}

QString drawingOf(const OutlineNode& node) {
  static const QHash<QString, QString> Drawings = {{"Project", "project"},
                                                   {"Package", "package"},
                                                   {"Component", "component"},
                                                   {"Diagram", "diagram"}};
  if (node.isControlledFile) return "file";
  return Drawings.value(shown(node.type), "file");
}

/// Told by letter as well as by colour.
std::optional<Badge> badgeOf(const OutlineNode& node) {
  if (node.access == Access::Stub) return Badge{"U", QColor(0x80, 0x80, 0x88)};
  if (node.isModified) return Badge{"M", QColor(0xd9, 0x77, 0x06)};
  if (node.isOutsideArchive) return Badge{"+", QColor(0x6d, 0x5b, 0xd0)};
  if (node.access == Access::ReadWrite) return Badge{"W", QColor(0x15, 0x80, 0x3d)};
  const bool isHeld = node.isHeldByOther || !node.locker.empty();
  if (isHeld && node.access == Access::ReadOnly) return Badge{"L", QColor(0xb9, 0x1c, 0x1c)};
  return std::nullopt;
}

QPixmap withBadge(QPixmap base, const Badge& badge) {
  const double side = base.width() * 0.56;
  const QRectF place(base.width() - side, base.height() - side, side, side);
  QPainter painter(&base);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(badge.colour);
  painter.drawRoundedRect(place, side * 0.28, side * 0.28);
  QFont font = QApplication::font();
  font.setPixelSize(std::max(6, static_cast<int>(side * 0.82)));
  font.setBold(true);
  painter.setFont(font);
  painter.setPen(Qt::white);
  painter.drawText(place, Qt::AlignCenter, badge.letter);
  return base;
}

}  // namespace

QIcon icon(const QString& name) {
  QIcon& known = cache()[name];
  if (known.isNull() && canDrawSvg())
    addAllPictures(name, known, [](QPixmap picture) { return picture; });
  return known;
}

QIcon unitIcon(const OutlineNode& node) {
  const QString name = drawingOf(node);
  const std::optional<Badge> badge = badgeOf(node);
  if (!badge) return icon(name);
  QIcon& known = cache()[name + '/' + badge->letter];
  if (known.isNull()) {
    addAllPictures(name, known, [&badge](QPixmap base) { return withBadge(base, *badge); });
  }
  return known;
}

void forgetIcons() {
  cache().clear();
}

}  // namespace veldra::host::desktop
