#include "cm/ui/Icons.h"

#include <QApplication>
#include <QFile>
#include <QFileIconProvider>
#include <QHash>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <array>
#include <memory>

#include "cm/core/CMArchiveItem.h"
#include "cm/core/CMStatus.h"
#include "cm/ui/SvgDrawing.h"
#include "cm/ui/widgets/Text.h"

namespace veldra {

namespace {

constexpr std::array<const char*, 22> CommandDrawings{
    "connect", "list-archive", "compare",   "synchronize", "refresh",  "run-tool",
    "branch",  "fetch",        "check-out", "undo",        "check-in", "add",
    "lock",    "unlock",       "history",   "properties",  "user-1",   "user-2",
    "user-3",  "user-4",       "flat",      "tree"};

constexpr std::array<const char*, 7> StateDrawings{"state-0", "state-1", "state-2", "state-3",
                                                   "state-4", "state-5", "state-6"};

/// Whatever is painted is the picture, too.
class PaintedEngine : public QIconEngine {
 public:
  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap picture(size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    paint(&painter, picture.rect(), mode, state);
    return picture;
  }
};

/// Draws an SVG in the palette's ink whenever it is asked, so that every size is sharp. The ink of
/// the Selected mode is given, since a pressed button and a selected line differ there.
class InkEngine : public PaintedEngine {
 public:
  InkEngine(QByteArray drawing, QPalette::ColorRole selectedInk)
      : m_drawing(std::move(drawing)), m_selectedInk(selectedInk) {}

  void paint(QPainter* painter, const QRect& place, QIcon::Mode mode, QIcon::State) override {
    const QRect moved = mode == QIcon::Selected ? place.translated(0, 1) : place;
    inked(inkOf(mode)).draw(*painter, moved);
  }

  QIconEngine* clone() const override { return new InkEngine(m_drawing, m_selectedInk); }

 private:
  QColor inkOf(QIcon::Mode mode) const {
    const QPalette palette = QApplication::palette();
    const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
    const auto role = mode == QIcon::Selected ? m_selectedInk
                      : mode == QIcon::Active ? QPalette::Highlight
                                              : QPalette::ButtonText;
    return palette.color(group, role);
  }

  /// The drawing in that ink. A list shows the same icon in every line; it is read once.
  const SvgDrawing& inked(const QColor& ink) {
    auto at = m_inked.find(ink.name());
    if (at == m_inked.end()) {
      QByteArray drawing = m_drawing;
      drawing.replace("currentColor", ink.name().toLatin1());
      at = m_inked.insert(ink.name(), SvgDrawing(drawing));
    }
    return *at;
  }

  QByteArray m_drawing;
  QPalette::ColorRole m_selectedInk;
  QHash<QString, SvgDrawing> m_inked;  ///< By the name of the ink.
};

/// Two icons beside each other, and perhaps a third one in the corner of the right one.
class PairEngine : public PaintedEngine {
 public:
  PairEngine(QIcon left, QIcon right, QIcon corner)
      : m_left(std::move(left)), m_right(std::move(right)), m_corner(std::move(corner)) {}

  void paint(QPainter* painter, const QRect& place, QIcon::Mode mode, QIcon::State) override {
    const int side = place.height();
    m_left.paint(painter, QRect(place.left(), place.top(), side, side), Qt::AlignCenter, mode);
    const QRect right(place.right() - side + 1, place.top(), side, side);
    m_right.paint(painter, right, Qt::AlignCenter, mode);
    m_corner.paint(painter, right.adjusted(side * 2 / 5, side * 2 / 5, 0, 0), Qt::AlignCenter,
                   mode);
  }

  QIconEngine* clone() const override { return new PairEngine(m_left, m_right, m_corner); }

 private:
  QIcon m_left;
  QIcon m_right;
  QIcon m_corner;
};

QHash<QString, QIcon>& cache() {
  static QHash<QString, QIcon> icons;
  return icons;
}

QIcon drawn(const QString& name, QPalette::ColorRole selectedInk = QPalette::HighlightedText) {
  QIcon& icon = cache()[name];
  if (!icon.isNull() || !canDrawSvg()) return icon;
  QFile file(QStringLiteral(":/veldra-cm/icons/%1.svg").arg(name));
  if (file.open(QIODevice::ReadOnly)) icon = QIcon(new InkEngine(file.readAll(), selectedInk));
  return icon;
}

QString drawingOf(const std::string& typeName) {
  static const QHash<QString, QString> drawings{
      {QStringLiteral("Project"), QStringLiteral("unit-project")},
      {QStringLiteral("Package"), QStringLiteral("unit-package")},
      {QStringLiteral("Diagram"), QStringLiteral("unit-diagram")}};
  return drawings.value(shown(typeName), QStringLiteral("unit-element"));
}

bool isEmbedded(const IUnit& unit) {
  return const_cast<IUnit&>(unit).asEmbededFile() != nullptr;
}

/// What the system shows for files of that type; null when it has no picture.
QIcon shellIcon(const std::string& fileName) {
  const QString suffix = QFileInfo(shown(fileName)).suffix().toLower();
  QIcon& icon = cache()[QStringLiteral("shell/") + suffix];
  if (icon.isNull()) {
    static const QFileIconProvider provider;
    icon = provider.icon(QFileInfo(QStringLiteral("file.") + suffix));
    if (icon.isNull() || icon.availableSizes().isEmpty()) icon = drawn(QStringLiteral("unit-file"));
  }
  return icon;
}

}  // namespace

QIcon commandIcon(DialogCommand command) {
  return drawn(QString::fromLatin1(CommandDrawings.at(static_cast<std::size_t>(command))),
               QPalette::Highlight);
}

QIcon stateIcon(int imageIndex) {
  const bool isKnown = imageIndex >= 0 && imageIndex < static_cast<int>(StateDrawings.size());
  return drawn(
      QString::fromLatin1(StateDrawings.at(isKnown ? static_cast<std::size_t>(imageIndex) : 0)));
}

QIcon unitIcon(const IUnit& unit) {
  return isEmbedded(unit) ? shellIcon(unit.getFileName()) : drawn(drawingOf(unit.getTypeName()));
}

QIcon itemIcon(const CMArchiveItem& item) {
  const std::string type = item.getType();
  return type.empty() ? shellIcon(item.getFileName()) : drawn(drawingOf(type));
}

QIcon unitIconWithState(const IUnit& unit, int overlay) {
  // Without a provider no state is known; the image of an invalid one would say "deleted".
  const int state = CMStatus::getIsInvalid(&unit) != 0 ? 0 : CMStatus::getCMStatusImgIndex(&unit);
  const QString kind =
      isEmbedded(unit) ? QStringLiteral("shell/") + QFileInfo(shown(unit.getFileName())).suffix()
                       : drawingOf(unit.getTypeName());
  const QString key = QStringLiteral("pair/%1/%2/%3").arg(state).arg(overlay).arg(kind);
  const auto known = cache().constFind(key);
  if (known != cache().constEnd()) return *known;
  const QIcon corner = overlay == 0 ? QIcon() : drawn(QStringLiteral("overlay-%1").arg(overlay));
  const QIcon pair(new PairEngine(stateIcon(state), unitIcon(unit), corner));
  cache().insert(key, pair);
  return pair;
}

QSize unitIconWithStateSize(int height) {
  return {height * 2 + 4, height};
}

void forgetIcons() {
  cache().clear();
}

}  // namespace veldra
