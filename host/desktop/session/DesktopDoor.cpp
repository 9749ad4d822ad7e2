#include "host/desktop/session/DesktopDoor.h"

#include "cm/host/IUserMessages.h"
#include "host/desktop/Text.h"

namespace veldra::host::desktop {
namespace {

constexpr int ButtonBits = 0xF;
constexpr int IconBits = 0xF0;

QMessageBox::Icon iconOf(int flags) {
  switch (flags & IconBits) {
    case MessageBox::IconError:
      return QMessageBox::Critical;
    case MessageBox::IconQuestion:
      return QMessageBox::Question;
    case MessageBox::IconWarning:
      return QMessageBox::Warning;
    default:
      return QMessageBox::Information;
  }
}

QMessageBox::StandardButtons buttonsOf(int flags) {
  switch (flags & ButtonBits) {
    case MessageBox::YesNoCancel:
      return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    case MessageBox::YesNo:
      return QMessageBox::Yes | QMessageBox::No;
    default:
      return QMessageBox::Ok;
  }
}

/// A text about many units keeps its first line before the eyes and the others apart, where they
/// can be read and copied however many they are.
Question questionOf(const std::string& text) {
  constexpr qsizetype MostLines = 12;
  const QString whole = shown(text).trimmed();
  if (whole.count('\n') < MostLines) return {.text = whole};
  return {.text = whole.section('\n', 0, 0), .details = whole.section('\n', 1)};
}

}  // namespace

void DesktopDoor::notify(const std::string& text, int /*level*/) {
  m_questions.ask(questionOf(text));
}

int DesktopDoor::ask(const std::string& text, int flags) {
  Question question = questionOf(text);
  question.icon = iconOf(flags);
  question.buttons = buttonsOf(flags);
  switch (m_questions.ask(question)) {
    case QMessageBox::Yes:
      return MessageBox::AnswerYes;
    case QMessageBox::No:
      return MessageBox::AnswerNo;
    case QMessageBox::Ok:
      return MessageBox::AnswerOk;
    default:
      return MessageBox::AnswerCancel;
  }
}

std::string DesktopDoor::askForAll(const std::string& text, const std::string& field) {
  switch (m_questions.ask({.text = shown(text),
                           .field = shown(field),
                           .icon = QMessageBox::Question,
                           .buttons = QMessageBox::Yes | QMessageBox::YesToAll | QMessageBox::No |
                                      QMessageBox::NoToAll | QMessageBox::Cancel,
                           .preset = QMessageBox::No})) {
    case QMessageBox::Yes:
      return "yes";
    case QMessageBox::YesToAll:
      return "yestoall";
    case QMessageBox::NoToAll:
      return "notoall";
    case QMessageBox::Cancel:
      return "cancel";
    default:
      return "no";
  }
}

}  // namespace veldra::host::desktop
