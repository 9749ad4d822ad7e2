#pragma once

#include <QEvent>
#include <QObject>
#include <QWidget>
#include <functional>

#include "cm/ui/Export.h"

namespace veldra {

/// While this lives, what a person types and clicks goes nowhere, and no window can be closed.
/// Windows are painted and timers run all the same.
class VELDRA_CM_UI_EXPORT HeldInput : public QObject {
  Q_OBJECT

 public:
  /// `passes` says which events of input get through to an object.
  explicit HeldInput(std::function<bool(const QObject& watched, const QEvent& event)> passes);
  ~HeldInput() override;

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  std::function<bool(const QObject&, const QEvent&)> m_passes;
};

/// Holds back the input of one window. What was typed and clicked meanwhile is thrown away at the
/// end, so that nothing happens late. Questions above the window work as usual.
class HeldWindow {
 public:
  explicit HeldWindow(const QWidget& window);
  HeldWindow(const HeldWindow&) = delete;
  HeldWindow& operator=(const HeldWindow&) = delete;
  ~HeldWindow();

 private:
  HeldInput m_held;
};

}  // namespace veldra
