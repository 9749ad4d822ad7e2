#include "host/desktop/session/Questions.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCoreApplication>

namespace veldra::host::desktop {

QMessageBox::StandardButton MessageBoxes::ask(const Question& question) {
  QMessageBox box(question.icon, QCoreApplication::applicationName(), question.text,
                  question.buttons, QApplication::activeWindow());
  // Names and what tools print are no markup.
  box.setTextFormat(Qt::PlainText);
  box.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  if (!question.details.isEmpty()) box.setDetailedText(question.details);
  if (question.preset != QMessageBox::NoButton) box.setDefaultButton(question.preset);
  QAbstractButton* retry = box.button(QMessageBox::Retry);
  if (retry && !question.retryText.isEmpty()) retry->setText(question.retryText);
  return static_cast<QMessageBox::StandardButton>(box.exec());
}

}  // namespace veldra::host::desktop
