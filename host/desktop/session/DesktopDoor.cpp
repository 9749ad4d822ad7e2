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

}  // namespace

void DesktopDoor::notify(const std::string& text, int /*level*/) {
  m_questions.ask({.text = shown(text)});
}

int DesktopDoor::ask(const std::string& text, int flags) {
  switch (
      m_questions.ask({.text = shown(text), .icon = iconOf(flags), .buttons = buttonsOf(flags)})) {
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
