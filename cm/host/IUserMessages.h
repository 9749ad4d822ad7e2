#pragma once

#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "cm/host/Export.h"

namespace veldra {

/// Icon and button bits of a message, and the answers, with the values of the published Win32
/// message box (winuser.h), which hosts on every platform share.
namespace MessageBox {
inline constexpr int Ok = 0x0;
inline constexpr int YesNoCancel = 0x3;
inline constexpr int YesNo = 0x4;
inline constexpr int DefaultSecond = 0x100;  ///< The second button is the default.
inline constexpr int IconError = 0x10;
inline constexpr int IconQuestion = 0x20;
inline constexpr int IconWarning = 0x30;
inline constexpr int IconInformation = 0x40;

inline constexpr int AnswerOk = 1;
inline constexpr int AnswerCancel = 2;
inline constexpr int AnswerYes = 6;
inline constexpr int AnswerNo = 7;
}  // namespace MessageBox

/// How much a message matters; the module shows everything at the second level.
inline constexpr int MessageLevel = 2;

/// The host's texts and its ways of talking to the user. Every host has one.
class IUserMessages {
 public:
  virtual ~IUserMessages() = default;

  /// The text of a numeric id in the user's language. %1, %2, ... stand for the values that the
  /// module fills in, in the order in which the id's description lists them. Empty when the id is
  /// unknown.
  virtual std::string loadString(int id) = 0;

  /// Tells the user something; no answer is needed.
  virtual void notifyUser(const std::string& text, int level) = 0;

  /// Shows a message with the icon and buttons of `flags` and returns the answer. A host that
  /// cannot ask gives the one that changes nothing: no, else cancel, else OK.
  virtual int notifyUserAndAsk(const std::string& text, int flags, int level) = 0;

  /// Shows a message that the user may switch off for good; `key` names it.
  virtual void oneTimeMessageBox(const std::string& key, const std::string& text, int flags) = 0;

  /// Asks whether a writable file may be overwritten. One of "yes", "no", "yestoall", "notoall" and
  /// "cancel". A host that cannot ask answers "no": nothing is overwritten.
  virtual std::string askOverwrite(const std::string& text) = 0;

  /// Asks whether a unit that the model does not have yet is to be loaded into it; the name stands
  /// in a field of its own. The same answers; a host that cannot ask loads nothing.
  virtual std::string askPartialLoad(const std::string& text, const std::string& unitName) {
    (void)text;
    (void)unitName;
    return "no";
  }

  /// Asks for a short text, for example the activity or the task that the following check-outs
  /// belong to. `proposals` are texts to choose from, the likeliest first; the user may type
  /// another one. Nothing when the user gives up or the host cannot ask.
  virtual std::optional<std::string> askForText(const std::string& question,
                                                const std::vector<std::string>& proposals) {
    (void)question;
    (void)proposals;
    return std::nullopt;
  }

  /// Shows the window in which the user names the archive to connect to. A host without windows
  /// does nothing.
  virtual void showConnectToArchive() {}
};

std::optional<std::string> askForText(const std::string& question,
                                      const std::vector<std::string>& proposals);
int notifyUserAndAsk(const std::string& text, int flags, int level = MessageLevel);
void notifyUser(const std::string& text, int level = MessageLevel);
void OneTimeMessageBox(const std::string& key, const std::string& text, int flags);

/// The text of a message id, and the same with its placeholders filled in order. An id that the
/// host does not know yields a text that names the id and the values, so that nothing is swallowed.
std::string loadMessage(int id);
VELDRA_CM_EXPORT std::string formatMessage(int id, std::initializer_list<std::string_view> values);

}  // namespace veldra
