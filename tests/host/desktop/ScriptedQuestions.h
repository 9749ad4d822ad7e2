#pragma once

#include <deque>
#include <vector>

#include "host/desktop/session/Questions.h"

namespace veldra::host::desktop {

/// Answers what the program asks, in the order given, and remembers what was asked. What nobody
/// foresaw gets the answer of a person who just wants the box to go away.
class ScriptedQuestions : public Questions {
 public:
  void answer(QMessageBox::StandardButton button) { m_answers.push_back(button); }

  QMessageBox::StandardButton ask(const Question& question) override {
    asked.push_back(question);
    if (m_answers.empty()) return QMessageBox::Cancel;
    const auto next = m_answers.front();
    m_answers.pop_front();
    return next;
  }

  std::vector<Question> asked;

 private:
  std::deque<QMessageBox::StandardButton> m_answers;
};

}  // namespace veldra::host::desktop
