#pragma once

#include <string>

#include "cm/scc/interface/SccCallbacks.h"

namespace veldra::subversion {

/// The way to the user: the text callback of the program, if it gave one.
class TextOutput {
 public:
  explicit TextOutput(scc::LPTEXTOUTPROC callback = nullptr) : m_callback(callback) {}

  /// Whether anybody will see a text.
  bool isHeard() const { return m_callback != nullptr; }
  /// The program has said that it answers STATUS and DOCANCEL; without that they are never sent.
  void setCancelMode(bool isOn) { m_hasCancelMode = isOn; }

  /// Each line goes out as a text of its own.
  void info(const std::string& text) const { send(text, scc::SCC_MSG_INFO); }
  void warning(const std::string& text) const { send(text, scc::SCC_MSG_WARNING); }
  void error(const std::string& text) const { send(text, scc::SCC_MSG_ERROR); }
  /// What is being done at the moment.
  void status(const std::string& text) const;

  void startCancel() const;
  void stopCancel() const;
  /// Asks the program whether to stop.
  bool isCancelled() const;

 private:
  void send(const std::string& text, scc::LONG kind) const;
  scc::LONG call(std::string line, scc::LONG kind) const;

  scc::LPTEXTOUTPROC m_callback;
  bool m_hasCancelMode = false;
};

/// Shows the program's cancel control for the time of one command.
class CancelControl {
 public:
  explicit CancelControl(const TextOutput& output) : m_output(output) { m_output.startCancel(); }
  CancelControl(const CancelControl&) = delete;
  CancelControl& operator=(const CancelControl&) = delete;
  ~CancelControl() { m_output.stopCancel(); }

 private:
  const TextOutput& m_output;
};

}  // namespace veldra::subversion
