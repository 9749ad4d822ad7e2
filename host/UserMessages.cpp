#include "host/UserMessages.h"

#include <cstdlib>
#include <filesystem>
#include <sstream>
#include <system_error>
#include <utility>

#include "host/model/StateFile.h"
#include "host/platform/AtomicFile.h"

namespace veldra::host {
namespace {

constexpr std::size_t SeenMessagesLimit = 1U << 20U;
constexpr int ButtonBits = 0xF;

/// What counts as the answer when there is nobody to ask.
int silentAnswer(int flags) {
  const int buttons = flags & ButtonBits;
  if (buttons == MessageBox::Ok) return MessageBox::AnswerOk;
  return buttons == MessageBox::YesNo ? MessageBox::AnswerNo : MessageBox::AnswerCancel;
}

}  // namespace

std::string standardSeenMessagesFile() {
  return stateFile("seen-messages");
}

SeenMessages::SeenMessages(std::string file) : m_file(std::move(file)) {}

void SeenMessages::read() {
  m_isRead = true;
  if (m_file.empty()) return;
  const Result<std::string> text = readFile(m_file, SeenMessagesLimit);
  if (!text) return;
  std::istringstream lines(*text);
  for (std::string key; std::getline(lines, key);) m_keys.insert(key);
}

bool SeenMessages::isNew(const std::string& key) {
  if (!m_isRead) read();
  if (!m_keys.insert(key).second) return false;
  if (m_file.empty()) return true;
  std::error_code failed;
  std::filesystem::create_directories(std::filesystem::path(m_file).parent_path(), failed);
  std::string text;
  for (const std::string& seen : m_keys) text += seen + "\n";
  (void)writeFileAtomically(m_file, text);
  return true;
}

UserMessages::UserMessages(const MessageCatalogue& catalogue, UserDoor* door,
                           std::string seenMessagesFile)
    : m_catalogue(catalogue), m_door(door), m_seen(std::move(seenMessagesFile)) {}

void UserMessages::notifyUser(const std::string& text, int level) {
  if (m_door) m_door->notify(text, level);
}

int UserMessages::notifyUserAndAsk(const std::string& text, int flags, int level) {
  (void)level;
  return m_door ? m_door->ask(text, flags) : silentAnswer(flags);
}

void UserMessages::oneTimeMessageBox(const std::string& key, const std::string& text, int flags) {
  if (m_door && m_seen.isNew(key)) (void)m_door->ask(text, flags);
}

std::string UserMessages::askOverwrite(const std::string& text) {
  return m_door ? m_door->askOverwrite(text) : "no";
}

}  // namespace veldra::host
