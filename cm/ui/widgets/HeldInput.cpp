#include "cm/ui/widgets/HeldInput.h"

#include <QCoreApplication>
#include <QWindow>
#include <utility>

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
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::Drop:
    case QEvent::Close:
      return true;
    default:
      return false;
  }
}

bool isPartOf(const QWidget& window, const QObject& object) {
  const auto* const widget = qobject_cast<const QWidget*>(&object);
  return widget != nullptr ? widget->window() == &window : &object == window.windowHandle();
}

}  // namespace

HeldInput::HeldInput(std::function<bool(const QObject&, const QEvent&)> passes)
    : m_passes(std::move(passes)) {
  QCoreApplication::instance()->installEventFilter(this);
}

HeldInput::~HeldInput() {
  QCoreApplication::instance()->removeEventFilter(this);
}

bool HeldInput::eventFilter(QObject* watched, QEvent* event) {
  if (!isInput(event->type()) || m_passes(*watched, *event)) return false;
  // A window manager's wish to close has to be refused, not swallowed.
  event->ignore();
  return true;
}

HeldWindow::HeldWindow(const QWidget& window)
    : m_held([&window](const QObject& watched, const QEvent&) {
        return !isPartOf(window, watched);
      }) {}

HeldWindow::~HeldWindow() {
  QCoreApplication::processEvents();
}

}  // namespace veldra
