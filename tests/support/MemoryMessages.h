#pragma once

#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "cm/host/IUserMessages.h"

namespace veldra::test {

/// A user who reads everything, and answers what was prepared.
class MemoryMessages : public IUserMessages {
 public:
  struct Shown {
    std::string text;
    int flags = 0;
    std::string key;  ///< Of a one-time message.
    bool operator==(const Shown&) const = default;
  };

  std::vector<Shown> notified;  ///< `notifyUser`
  std::vector<Shown> asked;     ///< `notifyUserAndAsk`
  std::vector<Shown> oneTime;   ///< `oneTimeMessageBox`
  std::vector<std::string> overwriteQuestions;
  std::deque<std::string> overwriteAnswers;  ///< Used up from the front; then "no".
  std::vector<std::string> loadQuestions;    ///< The names of the units.
  std::deque<std::string> loadAnswers;       ///< As above.
  int answer = MessageBox::AnswerOk;
  std::vector<std::string> textQuestions;
  std::vector<std::string> lastProposals;
  std::optional<std::string> textAnswer;

  /// The id and the places of its values, so that tests see which text was used and in which order
  /// it was filled: "48352: %1 %2".
  std::string loadString(int id) override;
  void notifyUser(const std::string& text, int level) override;
  int notifyUserAndAsk(const std::string& text, int flags, int level) override;
  void oneTimeMessageBox(const std::string& key, const std::string& text, int flags) override;
  std::string askOverwrite(const std::string& text) override;
  std::string askPartialLoad(const std::string& text, const std::string& unitName) override;
  std::optional<std::string> askForText(const std::string& question,
                                        const std::vector<std::string>& proposals) override;
  void showConnectToArchive() override { ++connectDialogs; }
  int connectDialogs = 0;
};

}  // namespace veldra::test
