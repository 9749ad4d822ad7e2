#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <functional>
#include <string>

namespace veldra::test {

using LookAtWidget = std::function<void(QWidget& widget, const std::string& where)>;

/// Looks at everything that is seen in an open window.
inline void eachVisibleWidget(QWidget& window, const std::string& name, const LookAtWidget& look) {
  QCoreApplication::processEvents();
  for (QWidget* widget : window.findChildren<QWidget*>()) {
    if (!widget->isVisible() || widget->window() != &window) continue;
    look(*widget, name + ": " + widget->metaObject()->className() + " " +
                      widget->objectName().toStdString());
  }
}

inline bool isControl(const QWidget& widget) {
  return widget.focusPolicy() != Qt::NoFocus &&
         (qobject_cast<const QAbstractButton*>(&widget) != nullptr ||
          qobject_cast<const QLineEdit*>(&widget) != nullptr ||
          qobject_cast<const QPlainTextEdit*>(&widget) != nullptr ||
          qobject_cast<const QAbstractItemView*>(&widget) != nullptr ||
          qobject_cast<const QComboBox*>(&widget) != nullptr);
}

inline void expectNameAndPurpose(QWidget& widget, const std::string& where) {
  QAccessibleInterface* const reader = QAccessible::queryAccessibleInterface(&widget);
  ASSERT_NE(reader, nullptr) << where;
  EXPECT_FALSE(reader->text(QAccessible::Name).isEmpty()) << where << " has no name";
  EXPECT_FALSE(reader->text(QAccessible::Description).isEmpty()) << where << " has no purpose";
}

/// The width below which something of the widget's text is not seen; 0 when it has none.
inline int neededWidth(const QWidget& widget) {
  if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
    if (button->text().isEmpty()) return 0;
    // What draws its caption itself does not tell Qt what it needs.
    const QSize needed = button->minimumSizeHint();
    return needed.isValid() ? needed.width()
                            : button->fontMetrics().horizontalAdvance(button->text());
  }
  const auto* const label = qobject_cast<const QLabel*>(&widget);
  return label == nullptr || label->wordWrap() ? 0 : label->sizeHint().width();
}

}  // namespace veldra::test
