#pragma once

#include <QObject>
#include <QWidget>

namespace veldra {

/// While this lives, a window gets no input; what was typed and clicked meanwhile is thrown away at
/// the end, so that nothing happens late. Questions above the window work as usual.
class HeldInput : public QObject {
  Q_OBJECT

 public:
  explicit HeldInput(QWidget& window);
  ~HeldInput() override;

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QWidget& m_window;
};

}  // namespace veldra
