#include "host/cli/TerminalDoor.h"

#include <string_view>
#include <utility>

#include "cm/host/IUserMessages.h"
#include "host/cli/printing/BytesAsText.h"
#include "host/model/PathNames.h"

namespace veldra::host::cli {

namespace {
constexpr int ButtonBits = 0xF;
}

void TerminalDoor::prepare() {
  if (const auto prepare = std::exchange(m_prepare, nullptr)) prepare();
}

void TerminalDoor::show(const std::string& text) {
  prepare();
  if (!m_shown.insert(text).second) return;
  m_last = text;
  m_console.clearProgress();
  m_console.err << linesForPeople(text) << '\n' << std::flush;
}

void TerminalDoor::notify(const std::string& text, int /*level*/) {
  show(text);
}

int TerminalDoor::ask(const std::string& text, int flags) {
  prepare();
  if (const auto prepared = m_answers.find(text); prepared != m_answers.end())
    return prepared->second;
  const int buttons = flags & ButtonBits;
  if (buttons == MessageBox::Ok) {
    show(text);
    return MessageBox::AnswerOk;
  }
  const bool mayCancel = buttons != MessageBox::YesNo;
  if (!m_console.asks) {
    show(text);
    return mayCancel ? MessageBox::AnswerCancel : MessageBox::AnswerNo;
  }
  switch (answerTo(text, mayCancel ? "ynq" : "yn")) {
    case 'y':
      return MessageBox::AnswerYes;
    case 'q':
      return mayCancel ? MessageBox::AnswerCancel : MessageBox::AnswerNo;
    default:
      return MessageBox::AnswerNo;
  }
}

std::string TerminalDoor::askOverwrite(const std::string& text) {
  if (m_overwrites) return "yestoall";
  if (!m_console.asks) return "no";
  switch (answerTo(text, "ynaq")) {
    case 'y':
      return "yes";
    case 'a':
      return "yestoall";
    case 'q':
      if (m_quit) m_quit();
      return "cancel";
    default:
      return "no";
  }
}

char TerminalDoor::answerTo(const std::string& question, const char* choices) {
  static constexpr std::string_view Words[] = {"[y]es", "[n]o", "[a]ll", "[q]uit"};
  const std::string_view allowed = choices;
  std::string line;
  m_console.clearProgress();
  for (;;) {
    m_console.err << linesForPeople(question) << '\n';
    for (const std::string_view word : Words) {
      if (allowed.find(word[1]) != std::string_view::npos) m_console.err << word << ' ';
    }
    m_console.err << "? " << std::flush;
    if (!std::getline(m_console.in, line)) return 'q';
    const std::string answer = lowerCase(line);
    if (!answer.empty() && allowed.find(answer[0]) != std::string_view::npos) return answer[0];
  }
}

}  // namespace veldra::host::cli
