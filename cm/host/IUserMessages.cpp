#include "cm/host/IUserMessages.h"

#include <cstddef>

#include "cm/host/Host.h"

namespace veldra {

namespace {

IUserMessages* messages() {
  Host* host = installedHost();
  return host != nullptr ? &host->messages() : nullptr;
}

/// What is shown for an id that the host has no text for.
std::string bareMessage(int id, const std::vector<std::string_view>& values) {
  std::string text = "Message " + std::to_string(id);
  for (std::size_t i = 0; i < values.size(); ++i) {
    text.append(i == 0 ? ": " : ", ").append(values[i]);
  }
  return text;
}

}  // namespace

std::optional<std::string> askForText(const std::string& question,
                                      const std::vector<std::string>& proposals) {
  return messages() != nullptr ? messages()->askForText(question, proposals) : std::nullopt;
}

int notifyUserAndAsk(const std::string& text, int flags, int level) {
  return messages() != nullptr ? messages()->notifyUserAndAsk(text, flags, level)
                               : MessageBox::AnswerCancel;
}

void notifyUser(const std::string& text, int level) {
  if (messages() != nullptr) messages()->notifyUser(text, level);
}

void OneTimeMessageBox(const std::string& key, const std::string& text, int flags) {
  if (messages() != nullptr) messages()->oneTimeMessageBox(key, text, flags);
}

std::string loadMessage(int id) {
  return formatMessage(id, {});
}

std::string formatMessage(int id, std::initializer_list<std::string_view> values) {
  const std::vector<std::string_view> list(values);
  const std::string format = messages() != nullptr ? messages()->loadString(id) : std::string();
  if (format.empty()) return bareMessage(id, list);

  std::string text;
  for (std::size_t i = 0; i < format.size(); ++i) {
    const bool isPlaceholder =
        format[i] == '%' && i + 1 < format.size() && format[i + 1] >= '1' && format[i + 1] <= '9';
    const std::size_t index = isPlaceholder ? static_cast<std::size_t>(format[i + 1] - '1') : 0;
    if (!isPlaceholder || index >= list.size()) {
      text += format[i];
      continue;
    }
    text.append(list[index]);
    ++i;
  }
  return text;
}

}  // namespace veldra
