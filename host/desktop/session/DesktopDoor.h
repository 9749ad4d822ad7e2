#pragma once

#include <functional>
#include <utility>

#include "host/UserDoor.h"
#include "host/desktop/session/Questions.h"

namespace veldra::host::desktop {

/// What the module asks and tells, as questions of the program.
class DesktopDoor : public UserDoor {
 public:
  /// `questions` must outlive the object.
  explicit DesktopDoor(Questions& questions) : m_questions(questions) {}

  void notify(const std::string& text, int level) override;
  int ask(const std::string& text, int flags) override;
  std::string askOverwrite(const std::string& text) override { return askForAll(text, {}); }
  std::string askPartialLoad(const std::string& text, const std::string& unitName) override {
    return askForAll(text, unitName);
  }
  void showConnectToArchive() override {
    if (m_connect) m_connect();
  }
  /// What shows that window.
  void setConnectWindow(std::function<void()> show) { m_connect = std::move(show); }

 private:
  /// A question whose answer may hold for everything that follows.
  std::string askForAll(const std::string& text, const std::string& field);

  Questions& m_questions;
  std::function<void()> m_connect;
};

}  // namespace veldra::host::desktop
