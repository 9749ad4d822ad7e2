#pragma once

#include <set>
#include <string>

#include "cm/host/IUserMessages.h"
#include "host/UserDoor.h"
#include "host/resources/MessageCatalogue.h"

namespace veldra::host {

/// The messages that a user has seen and does not want again, one key a line in a file of the
/// user's.
class SeenMessages {
 public:
  /// Without a file nothing is remembered beyond the life of the object.
  explicit SeenMessages(std::string file);
  /// True the first time for a key. A file that cannot be written is no reason to fail: the message
  /// is then shown again next time.
  bool isNew(const std::string& key);

 private:
  void read();

  std::string m_file;
  bool m_isRead = false;
  std::set<std::string> m_keys;
};

/// The file for messages seen: veldra-cm/seen-messages below XDG_STATE_HOME or ~/.local/state.
/// Empty when the user has no home.
std::string standardSeenMessagesFile();

/// Texts from the catalogue, questions through the user's door.
class UserMessages : public IUserMessages {
 public:
  /// Both references must outlive the object; without a door questions get the answer that changes
  /// nothing.
  UserMessages(const MessageCatalogue& catalogue, UserDoor* door, std::string seenMessagesFile);

  std::string loadString(int id) override { return m_catalogue.text(id); }
  void notifyUser(const std::string& text, int level) override;
  int notifyUserAndAsk(const std::string& text, int flags, int level) override;
  void oneTimeMessageBox(const std::string& key, const std::string& text, int flags) override;
  std::string askOverwrite(const std::string& text) override;
  std::string askPartialLoad(const std::string& text, const std::string& unitName) override {
    return m_door ? m_door->askPartialLoad(text, unitName) : "no";
  }
  void showConnectToArchive() override {
    if (m_door) m_door->showConnectToArchive();
  }

 private:
  const MessageCatalogue& m_catalogue;
  UserDoor* m_door;
  SeenMessages m_seen;
};

}  // namespace veldra::host
