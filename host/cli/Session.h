#pragma once

#include <string>

#include "host/ReferenceHost.h"
#include "host/cli/BatchProgress.h"
#include "host/cli/CommandWatch.h"
#include "host/cli/Commands.h"
#include "host/cli/Interrupt.h"
#include "host/cli/OutputWindow.h"
#include "host/cli/TerminalDoor.h"
#include "host/platform/Processes.h"

namespace veldra::host::cli {

/// Where the CM output window of a run goes.
enum class WindowUse {
  Quiet,    ///< Nowhere, unless the user wants everything.
  Result,   ///< It is what the command is for: to the output, or kept for the document.
  Explain,  ///< To the error output.
};

/// The reference host for one command: installed while this lives, with the project that the user
/// means.
class Session {
 public:
  explicit Session(const Invocation& invocation, WindowUse window = WindowUse::Quiet);
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;
  ~Session();

  /// Opens the project that the options name, else that of the current folder or the nearest above,
  /// for a command that runs the tool. Ends the command when there is none, when it cannot be
  /// opened, and when it brings commands that the user has not trusted.
  Project& openProject();
  /// The same for a command that chooses the tool.
  Project& openTrusted();
  /// The same for a command that runs nothing.
  Project& openToLook();
  /// The same for a folder or file.
  Project& openProject(const std::string& directoryOrFile);
  /// Opens the project when there is one. False without; one that is named must exist.
  bool openProjectIfAny();

  ReferenceHost& host() { return m_host; }
  Project& project();
  BatchProgress& progress() { return m_progress; }
  TerminalDoor& door() { return m_door; }
  const Options& options() const { return m_options; }
  Console& console() { return m_console; }

  /// Where the output window goes from here on.
  void setWindow(WindowUse window);

  /// Writes what is modified; nothing in a dry run. What cannot be written is told when `tells`.
  void save(bool tells);

 private:
  void tellProblems(const Problems& problems);
  HostOptions hostOptions();

  const Invocation& m_invocation;
  const Options& m_options;
  Console& m_console;
  TerminalDoor m_door;
  OutputWindow m_window;
  BatchProgress m_progress;
  Processes m_processes;
  CommandWatch m_watch;
  InterruptTarget m_interruptTarget;
  ReferenceHost m_host;
};

/// The folder of the nearest project, beginning with `directory` and going up; empty for none.
std::string nearestProject(const std::string& directory);

}  // namespace veldra::host::cli
