#include "cm/ui/widgets/HeldInput.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QWindow>
#include <utility>

namespace veldra {

namespace {

bool isInput(const QEvent& event) {
  switch (event.type()) {
    case QEvent::MouseMove:
      // A pointer that only passes over things changes nothing; one that draws selects.
      return static_cast<const QMouseEvent&>(event).buttons() != Qt::NoButton;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::ShortcutOverride:
    case QEvent::InputMethod:
    case QEvent::ContextMenu:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TabletPress:
    case QEvent::TabletMove:
    case QEvent::TabletRelease:
    case QEvent::Drop:
    case QEvent::Close:
      return true;
    default:
      return false;
  }
}

bool isPartOf(const QWidget& window, const QObject& object) {
  if (&object == window.windowHandle()) return true;
  // Shortcuts are no widgets, but belong to one.
  const QObject* owner = &object;
  while (owner != nullptr && !owner->isWidgetType()) owner = owner->parent();
  return owner != nullptr && static_cast<const QWidget*>(owner)->window() == &window;
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
  if (!isInput(*event) || m_passes(*watched, *event)) return false;
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
