#include "cm/ui/widgets/HeldInput.h"

#include <QApplication>
#include <QEvent>
#include <QWindow>

namespace veldra {

namespace {

bool isInput(QEvent::Type type) {
  switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::ShortcutOverride:
    case QEvent::ContextMenu:
    case QEvent::TouchBegin:
    case QEvent::TouchEnd:
    case QEvent::TouchUpdate:
      return true;
    default:
      return false;
  }
}

}  // namespace

HeldInput::HeldInput(QWidget& window) : m_window(window) {
  qApp->installEventFilter(this);
}

HeldInput::~HeldInput() {
  QCoreApplication::processEvents();
  qApp->removeEventFilter(this);
}

bool HeldInput::eventFilter(QObject* watched, QEvent* event) {
  if (!isInput(event->type())) return false;
  const auto* const widget = qobject_cast<QWidget*>(watched);
  if (widget != nullptr) return widget->window() == &m_window;
  return watched == m_window.windowHandle();
}

}  // namespace veldra
