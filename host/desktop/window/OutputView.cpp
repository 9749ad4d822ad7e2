#include "host/desktop/window/OutputView.h"

#include <QFontDatabase>
#include <QScrollBar>
#include <QTextCursor>

namespace veldra::host::desktop {
namespace {
constexpr int MostLines = 20000;
// A tool that floods its output would otherwise keep the window busy.
constexpr int MostLiveCharacters = 1 << 20;
}  // namespace

OutputView::OutputView(QWidget* parent) : QPlainTextEdit(parent) {
  setReadOnly(true);
  setMaximumBlockCount(MostLines);
  setLineWrapMode(NoWrap);
  setUndoRedoEnabled(false);
  setFrameShape(NoFrame);
  setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  useFixedFont();
}

void OutputView::useFixedFont() {
  QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  font.setPointSizeF(QFontInfo(this->font()).pointSizeF());
  document()->setDefaultFont(font);
}

void OutputView::changeEvent(QEvent* event) {
  QPlainTextEdit::changeEvent(event);
  if (event->type() == QEvent::FontChange) useFixedFont();
}

void OutputView::follow(OutputSink& sink) {
  connect(&sink, &OutputSink::text, this, &OutputView::addText);
  connect(&sink, &OutputSink::live, this, &OutputView::addLive);
  connect(&sink, &OutputSink::liveEnded, this, &OutputView::dropLive);
  connect(&sink, &OutputSink::cleared, this, [this] {
    m_liveStart = -1;
    clear();
  });
}

void OutputView::insert(const QString& text) {
  QScrollBar* bar = verticalScrollBar();
  const bool isAtEnd = bar->value() >= bar->maximum() - 1;
  QTextCursor cursor(document());
  cursor.movePosition(QTextCursor::End);
  cursor.insertText(text);
  if (isAtEnd) bar->setValue(bar->maximum());
}

void OutputView::addText(const QString& text) {
  dropLive();
  insert(text);
}

void OutputView::addLive(const QString& text) {
  if (m_liveStart < 0) {
    // While it is shown nothing may scroll out at the top, or its start would move.
    setMaximumBlockCount(0);
    m_liveStart = document()->characterCount() - 1;
  }
  if (document()->characterCount() - m_liveStart > MostLiveCharacters) return;
  insert(text);
}

void OutputView::dropLive() {
  if (m_liveStart < 0) return;
  QTextCursor cursor(document());
  cursor.setPosition(std::min(m_liveStart, document()->characterCount() - 1));
  cursor.movePosition(QTextCursor::End, QTextCursor::KeepAnchor);
  cursor.removeSelectedText();
  m_liveStart = -1;
  setMaximumBlockCount(MostLines);
}

}  // namespace veldra::host::desktop
