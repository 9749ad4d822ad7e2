#pragma once

#include <string>

namespace veldra::host {

/// How a program of the reference host talks to its user. What is said and asked is decided
/// elsewhere.
class UserDoor {
 public:
  virtual ~UserDoor() = default;

  /// Tells something that needs no answer.
  virtual void notify(const std::string& text, int level) = 0;
  /// Shows a message with the icon and buttons of `flags` (`veldra::MessageBox`) and returns the
  /// answer.
  virtual int ask(const std::string& text, int flags) = 0;
  /// Whether a writable file may be overwritten: "yes", "no", "yestoall", "notoall" or "cancel".
  virtual std::string askOverwrite(const std::string& text) = 0;
  /// Whether a unit that the model does not have yet is loaded into it. The same answers.
  virtual std::string askPartialLoad(const std::string& text, const std::string& unitName) {
    (void)text;
    (void)unitName;
    return "no";
  }
  /// Shows the window in which the user names the archive to connect to; a program without windows
  /// does nothing.
  virtual void showConnectToArchive() {}
};

}  // namespace veldra::host
