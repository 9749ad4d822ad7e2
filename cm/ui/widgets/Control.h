#pragma once

#include <QString>
#include <QWidget>

namespace veldra {

/// The object name of the control with that number.
inline QString controlName(int id) {
  return QStringLiteral("control-%1").arg(id);
}

/// Gives a widget its number and what a screen reader says about it.
template <class Widget>
Widget* control(Widget* widget, int id, const QString& name, const QString& description = {}) {
  widget->setObjectName(controlName(id));
  widget->setAccessibleName(name);
  if (!description.isEmpty()) widget->setAccessibleDescription(description);
  return widget;
}

/// The control of that number inside a window, or null.
template <class Widget = QWidget>
Widget* findControl(const QWidget& window, int id) {
  return window.findChild<Widget*>(controlName(id));
}

}  // namespace veldra
