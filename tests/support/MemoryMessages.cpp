#include "tests/support/MemoryMessages.h"

#include <map>

namespace veldra::test {

std::string MemoryMessages::loadString(int id) {
  static const std::map<int, const char*> placeholders{{949, ": %1 %2 %3 %4"},
                                                       {953, ": %1 %2"},
                                                       {958, ""},
                                                       {959, ""},
                                                       {962, ""},
                                                       {46554, ""},
                                                       {47640, ": %1"},
                                                       {48352, ": %1 %2"},
                                                       {60010, ": %1"},
                                                       {60810, ": %1"}};
  const auto known = placeholders.find(id);
  return std::to_string(id) + (known == placeholders.end() ? ": %1 %2" : known->second);
}

void MemoryMessages::notifyUser(const std::string& text, int) {
  notified.push_back({text, 0, ""});
}

int MemoryMessages::notifyUserAndAsk(const std::string& text, int flags, int) {
  asked.push_back({text, flags, ""});
  return answer;
}

void MemoryMessages::oneTimeMessageBox(const std::string& key, const std::string& text, int flags) {
  oneTime.push_back({text, flags, key});
}

namespace {
std::string takeFrom(std::deque<std::string>& answers) {
  if (answers.empty()) return "no";
  std::string given = answers.front();
  answers.pop_front();
  return given;
}
}  // namespace

std::string MemoryMessages::askOverwrite(const std::string& text) {
  overwriteQuestions.push_back(text);
  return takeFrom(overwriteAnswers);
}

std::string MemoryMessages::askPartialLoad(const std::string&, const std::string& unitName) {
  loadQuestions.push_back(unitName);
  return takeFrom(loadAnswers);
}

std::optional<std::string> MemoryMessages::askForText(const std::string& question,
                                                      const std::vector<std::string>& proposals) {
  textQuestions.push_back(question);
  lastProposals = proposals;
  return textAnswer;
}

}  // namespace veldra::test
