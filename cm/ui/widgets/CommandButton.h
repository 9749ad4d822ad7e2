#pragma once

#include <QAbstractButton>

#include "cm/ui/logic/ButtonRules.h"

namespace veldra {

/// A picture with a caption below it; up, down and focused look different.
class CommandButton : public QAbstractButton {
  Q_OBJECT

 public:
  explicit CommandButton(const ButtonFace& face, QWidget* parent = nullptr);

  /// The command whose picture it shows.
  DialogCommand command() const { return m_command; }
  /// Takes caption, tooltip and visibility.
  void show(const ButtonFace& face);
  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void enterEvent(QEnterEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  QIcon::Mode pictureMode() const;

  DialogCommand m_command;
};

}  // namespace veldra
