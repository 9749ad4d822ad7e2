#pragma once

#include <functional>
#include <string>
#include <unordered_map>
#include <unordered_set>

#include "host/UserDoor.h"
#include "host/cli/Console.h"

namespace veldra::host::cli {

/// Talks to the user of the command line. Texts go to the error output, each once. Where nobody can
/// answer, the answer is the one that changes nothing.
class TerminalDoor : public UserDoor {
 public:
  /// `overwrites`: writable files are overwritten without a question.
  TerminalDoor(Console& console, bool overwrites) : m_console(console), m_overwrites(overwrites) {}

  /// Called once, before the first text or question: what `mute` and `prepareAnswer` need are texts
  /// that a command which says nothing need not read.
  void setPreparation(std::function<void()> preparation) { m_prepare = std::move(preparation); }
  /// A text that is not shown, because the command tells the same with more detail.
  void mute(const std::string& text) { m_shown.insert(text); }
  /// A question that the command line has answered already.
  void prepareAnswer(const std::string& question, int answer) { m_answers[question] = answer; }
  /// Told when the user answers that it is enough.
  void setQuitListener(std::function<void()> listener) { m_quit = std::move(listener); }
  bool hasShown(const std::string& text) const { return m_shown.contains(text); }
  bool hasShownAnything() const { return !m_shown.empty(); }
  /// The text that was shown last; empty when there was none.
  const std::string& lastText() const { return m_last; }

  void notify(const std::string& text, int level) override;
  int ask(const std::string& text, int flags) override;
  std::string askOverwrite(const std::string& text) override;

 private:
  void prepare();
  void show(const std::string& text);
  /// The first letter of the user's answer, in lower case; 'q' at the end of the input.
  char answerTo(const std::string& question, const char* choices);

  Console& m_console;
  bool m_overwrites;
  std::function<void()> m_prepare;
  std::function<void()> m_quit;
  std::string m_last;
  std::unordered_set<std::string> m_shown;
  std::unordered_map<std::string, int> m_answers;
};

}  // namespace veldra::host::cli
