#include "host/desktop/window/EditorParts.h"

#include <QApplication>
#include <QEvent>
#include <QHBoxLayout>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

#include "cm/ui/widgets/Text.h"
#include "host/desktop/window/Icons.h"

namespace veldra::host::desktop {

Banner::Banner(QWidget* parent)
    : QFrame(parent), m_label(new QLabel), m_layout(new QHBoxLayout(this)) {
  m_layout->setContentsMargins(12, 6, 8, 6);
  m_label->setTextFormat(Qt::PlainText);
  m_label->setWordWrap(true);
  m_layout->addWidget(m_label, 1);
  setAutoFillBackground(true);
  colour();
}

QPushButton* Banner::addButton(const QString& text, const QString& purpose) {
  auto* button = new QPushButton(text);
  button->setAccessibleDescription(purpose);
  m_layout->addWidget(button);
  return button;
}

void Banner::changeEvent(QEvent* event) {
  QFrame::changeEvent(event);
  if (event->type() == QEvent::ApplicationPaletteChange) colour();
}

void Banner::colour() {
  QPalette own = QApplication::palette();
  QColor ground = own.color(QPalette::Highlight);
  ground.setAlphaF(0.16F);
  own.setColor(QPalette::Window, ground);
  setPalette(own);
}

ElidedLabel::ElidedLabel(QWidget* parent) : QLabel(parent) {
  setTextFormat(Qt::PlainText);
  setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

void ElidedLabel::setWhole(const QString& text) {
  m_whole = text;
  setToolTip(plainTip(text));
  fit();
}

void ElidedLabel::resizeEvent(QResizeEvent* event) {
  QLabel::resizeEvent(event);
  fit();
}

void ElidedLabel::fit() {
  setText(fontMetrics().elidedText(m_whole, Qt::ElideMiddle, width()));
}

EditorPage::EditorPage(QWidget* parent)
    : QWidget(parent), m_tools(new QHBoxLayout), m_layout(new QVBoxLayout(this)) {
  m_layout->setContentsMargins(0, 6, 0, 0);
  m_layout->setSpacing(4);
  m_tools->addStretch();
  m_layout->addLayout(m_tools);
}

void EditorPage::setContent(QWidget* content) {
  m_layout->addWidget(content, 1);
}

QToolButton* EditorPage::addTool(const QString& iconName, const QString& text,
                                 std::function<void()> action) {
  auto* button = new QToolButton;
  button->setIcon(icon(iconName));
  button->setProperty("iconName", iconName);
  button->setToolTip(text);
  button->setAccessibleName(text);
  button->setAccessibleDescription(text);
  button->setAutoRaise(true);
  connect(button, &QToolButton::clicked, this, std::move(action));
  m_tools->insertWidget(m_tools->count() - 1, button);
  return button;
}

}  // namespace veldra::host::desktop
