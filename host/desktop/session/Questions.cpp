#include "host/desktop/session/Questions.h"

#include <QApplication>
#include <QCoreApplication>
#include <map>
#include <string>

#include "cm/ui/synchronize/QuestionWindow.h"
#include "cm/ui/widgets/Text.h"

namespace veldra::host::desktop {

namespace {

/// Questions about one of many have a window of their own.
QMessageBox::StandardButton askForAll(const Question& question) {
  static const std::map<std::string, QMessageBox::StandardButton> Buttons{
      {"yes", QMessageBox::Yes},
      {"yestoall", QMessageBox::YesToAll},
      {"no", QMessageBox::No},
      {"notoall", QMessageBox::NoToAll},
      {"cancel", QMessageBox::Cancel}};
  return Buttons.at(QuestionWindow::ask(question.text.toStdString(), question.field.toStdString()));
}

}  // namespace

QMessageBox::StandardButton MessageBoxes::ask(const Question& question) {
  if (question.buttons.testFlag(QMessageBox::YesToAll)) return askForAll(question);
  QMessageBox box(question.icon, QCoreApplication::applicationName(), shownLines(question.text),
                  question.buttons, QApplication::activeWindow());
  // Names and what tools print are no markup.
  box.setTextFormat(Qt::PlainText);
  box.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  if (!question.details.isEmpty()) box.setDetailedText(shownLines(question.details));
  if (question.preset != QMessageBox::NoButton) box.setDefaultButton(question.preset);
  return static_cast<QMessageBox::StandardButton>(box.exec());
}

}  // namespace veldra::host::desktop
