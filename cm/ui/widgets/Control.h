#pragma once

#include <QDialogButtonBox>
#include <QString>
#include <QWidget>

#include "cm/ui/Export.h"

namespace veldra {

/// The object name of the control with that number.
inline QString controlName(int id) {
  return QStringLiteral("control-%1").arg(id);
}

/// What a screen reader says about the purpose of the control with that number, for those whose
/// name does not say it; empty for others.
QString controlDescription(int id);

/// The same for the buttons that close a window.
VELDRA_CM_UI_EXPORT void describeButtons(const QDialogButtonBox& buttons);

/// Gives a widget its number and what a screen reader says about it.
template <class Widget>
Widget* control(Widget* widget, int id, const QString& name, const QString& description = {}) {
  widget->setObjectName(controlName(id));
  widget->setAccessibleName(name);
  widget->setAccessibleDescription(description.isEmpty() ? controlDescription(id) : description);
  return widget;
}

/// The control of that number inside a window, or null.
template <class Widget = QWidget>
Widget* findControl(const QWidget& window, int id) {
  return window.findChild<Widget*>(controlName(id));
}

}  // namespace veldra
