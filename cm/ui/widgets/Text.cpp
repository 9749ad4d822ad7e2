#include "cm/ui/widgets/Text.h"

#include "cm/ui/logic/HostTexts.h"

namespace veldra {

namespace {

bool isHidden(QChar character) {
  switch (character.category()) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
      return true;
    default:
      return false;
  }
}

}  // namespace

QString shown(std::string_view bytes) {
  QString text = QString::fromUtf8(bytes.data(), static_cast<qsizetype>(bytes.size()));
  for (QChar& character : text) {
    if (isHidden(character)) character = QChar::ReplacementCharacter;
  }
  return text;
}

QString shownLines(const QString& text) {
  QString lines = text;
  lines.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
  for (QChar& character : lines) {
    const bool isLayout = character == QLatin1Char('\n') || character == QLatin1Char('\t');
    if (!isLayout && isHidden(character)) character = QChar::ReplacementCharacter;
  }
  return lines;
}

QString plainTip(const QString& text) {
  // Qt takes a tip for plain text as long as it finds no tag, and then shows entities as they are.
  return QStringLiteral("<p style='white-space:pre'>%1</p>").arg(text.toHtmlEscaped());
}

std::string bytesOf(const QString& text) {
  return text.toStdString();
}

QString hostText(int id) {
  const std::string text = dialogText(id);
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace veldra
