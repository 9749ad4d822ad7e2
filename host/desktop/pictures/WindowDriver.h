#pragma once

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QTimer>
#include <QWidget>
#include <functional>

namespace veldra::host::desktop {

using FillDialog = std::function<void(QDialog&)>;

/// Triggers an action of a window as a person does. When a dialog comes up, `fill` fills it in, and
/// it is accepted, or closed when there is nothing to accept. False when there is no such action or
/// it cannot be triggered now.
[[nodiscard]] inline bool perform(QWidget& window, const char* action,
                                  const FillDialog& fill = {}) {
  // What the last command left to do is done first.
  QCoreApplication::processEvents();
  auto* found = window.findChild<QAction*>(action);
  if (!found || !found->isEnabled()) return false;
  QTimer timer;
  QObject::connect(&timer, &QTimer::timeout, &timer, [&timer, &fill] {
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (!dialog || dialog->inherits("veldra::host::desktop::ProgressPopup")) return;
    timer.stop();
    if (fill) fill(*dialog);
    auto* buttons = dialog->findChild<QDialogButtonBox*>();
    QPushButton* ok = buttons ? buttons->button(QDialogButtonBox::Ok) : nullptr;
    if (ok) {
      ok->click();
    } else {
      dialog->reject();
    }
  });
  timer.start(20);
  found->trigger();
  return true;
}

}  // namespace veldra::host::desktop
