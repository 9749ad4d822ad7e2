#include "cm/ui/widgets/Text.h"

#include "cm/ui/logic/HostTexts.h"

namespace veldra {

namespace {

bool isHidden(QChar character) {
  const QChar::Category category = character.category();
  return category == QChar::Other_Control || category == QChar::Other_Format;
}

}  // namespace

QString shown(std::string_view bytes) {
  QString text = QString::fromUtf8(bytes.data(), static_cast<qsizetype>(bytes.size()));
  for (QChar& character : text) {
    if (isHidden(character)) character = QChar::ReplacementCharacter;
  }
  return text;
}

std::string bytesOf(const QString& text) {
  return text.toStdString();
}

QString hostText(int id) {
  const std::string text = dialogText(id);
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace veldra
