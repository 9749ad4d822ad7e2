#pragma once

#include <QAbstractButton>

#include "cm/ui/logic/ButtonRules.h"

namespace veldra {

/// A picture with a caption below it; up, down and focused look different.
class CommandButton : public QAbstractButton {
  Q_OBJECT

 public:
  explicit CommandButton(const ButtonRow& row, QWidget* parent = nullptr);

  DialogCommand command() const { return m_row.command; }
  /// Takes caption, tooltip and visibility from the project's present settings.
  void refresh();
  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void enterEvent(QEnterEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  QIcon::Mode pictureMode() const;

  const ButtonRow& m_row;
};

}  // namespace veldra
