#include "host/tandel/window/Pane.h"

#include <QEvent>
#include <QFontDatabase>
#include <QScrollBar>
#include <QTextBlock>

#include "host/desktop/Text.h"

namespace veldra::host::tandel {

namespace {

/// Colours that can be read on light and on dark ground.
struct Marks {
  QColor gap;
  QColor different;
  QColor current;
};

Marks marksFor(const QPalette& palette) {
  const bool isDark = palette.color(QPalette::Base).lightness() < 128;
  if (isDark) return {QColor("#2b2f36"), QColor("#4a3a1c"), QColor("#1f4a7a")};
  return {QColor("#eceef2"), QColor("#fdf0cf"), QColor("#cfe2ff")};
}

}  // namespace

Pane::Pane(Shows shows, const QString& name, QWidget* parent)
    : QPlainTextEdit(parent), m_shows(shows) {
  setReadOnly(true);
  setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  setLineWrapMode(QPlainTextEdit::NoWrap);
  setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  setAccessibleName(name);
  setTabChangesFocus(true);
  connect(verticalScrollBar(), &QScrollBar::valueChanged, this, &Pane::markVisible);
  connect(this, &QPlainTextEdit::cursorPositionChanged, this, &Pane::pick);
}

bool Pane::has(const PaneRow& row) const {
  return m_shows == Shows::First ? row.hasFirst : row.hasSecond;
}

void Pane::setRows(const std::vector<PaneRow>& rows) {
  std::string text;
  for (const PaneRow& row : rows) {
    if (!text.empty() || &row != rows.data()) text += '\n';
    text += m_shows == Shows::First ? row.first : row.second;
  }
  m_rows = nullptr;
  m_current = PaneRow::None;
  setPlainText(desktop::shown(text));
  m_rows = &rows;
  markVisible();
}

void Pane::setCurrent(std::size_t difference) {
  m_current = difference;
  for (std::size_t row = 0; m_rows != nullptr && row < m_rows->size(); ++row) {
    if ((*m_rows)[row].difference != difference) continue;
    const int line = static_cast<int>(row);
    const int first = firstVisibleBlock().blockNumber();
    const int visible = viewport()->height() / std::max(1, fontMetrics().lineSpacing());
    if (line < first + 1 || line > first + visible - 3) {
      verticalScrollBar()->setValue(std::max(0, line - visible / 3));
    }
    break;
  }
  markVisible();
}

QColor Pane::colourOf(const PaneRow& row) const {
  const Marks marks = marksFor(palette());
  if (row.difference != PaneRow::None && row.difference == m_current) return marks.current;
  if (!has(row)) return marks.gap;
  return row.difference != PaneRow::None ? marks.different : QColor();
}

// A comparison may have far more lines than anybody sees.
void Pane::markVisible() {
  QList<QTextEdit::ExtraSelection> selections;
  QTextBlock block = firstVisibleBlock();
  int lines = viewport()->height() / std::max(1, fontMetrics().lineSpacing()) + 2;
  for (; m_rows != nullptr && block.isValid() && lines > 0; block = block.next(), --lines) {
    const auto row = static_cast<std::size_t>(block.blockNumber());
    const QColor colour = row < m_rows->size() ? colourOf((*m_rows)[row]) : QColor();
    if (!colour.isValid()) continue;
    QTextEdit::ExtraSelection selection;
    selection.cursor = QTextCursor(block);
    selection.format.setBackground(colour);
    selection.format.setProperty(QTextFormat::FullWidthSelection, true);
    selections.push_back(selection);
  }
  setExtraSelections(selections);
}

void Pane::pick() {
  const auto row = static_cast<std::size_t>(textCursor().blockNumber());
  if (m_rows == nullptr || row >= m_rows->size() || !hasFocus()) return;
  const std::size_t difference = (*m_rows)[row].difference;
  if (difference != PaneRow::None && difference != m_current) emit differencePicked(difference);
}

void Pane::resizeEvent(QResizeEvent* event) {
  QPlainTextEdit::resizeEvent(event);
  markVisible();
}

void Pane::changeEvent(QEvent* event) {
  QPlainTextEdit::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) markVisible();
}

}  // namespace veldra::host::tandel
