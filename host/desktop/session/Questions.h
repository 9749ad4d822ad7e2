#pragma once

#include <QMessageBox>
#include <QString>

namespace veldra::host::desktop {

/// Something that is told or asked.
struct Question {
  QString text;
  QString details{};  ///< What a message with many lines keeps apart, to be read and copied.
  QString field{};    ///< A name that stands in a field of its own; empty for none.
  QMessageBox::Icon icon = QMessageBox::Information;
  QMessageBox::StandardButtons buttons = QMessageBox::Ok;
  QMessageBox::StandardButton preset = QMessageBox::NoButton;
};

/// The one door through which the program talks to its user, so that another may answer.
class Questions {
 public:
  virtual ~Questions() = default;
  virtual QMessageBox::StandardButton ask(const Question& question) = 0;
};

/// Asks with message boxes in front of the active window.
class MessageBoxes : public Questions {
 public:
  QMessageBox::StandardButton ask(const Question& question) override;
};

}  // namespace veldra::host::desktop
