#pragma once

#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

#include "cm/core/CMArchiveItemList.h"
#include "host/ReferenceHost.h"
#include "tests/live/Sandbox.h"
#include "tests/support/ScriptedItemView.h"

namespace veldra::live {

/// Somebody at the windows of a model: what the dialogs decide and do runs in this process, with
/// the real tool or provider, on a project of the sandbox. Every question is answered with yes, and
/// the compare tool is not started but written down.
///
/// There is one at a time, because the installed host and this process's environment are its own.
class Desk {
 public:
  Desk(const Sandbox& sandbox, const std::string& folder);
  Desk(const Desk&) = delete;
  Desk& operator=(const Desk&) = delete;
  ~Desk();

  /// The window that commands on archive entries are started from.
  test::ScriptedItemView& window() { return m_window; }
  /// Lists the archive in it and selects this entry. False when the archive has no such entry.
  [[nodiscard]] bool select(const std::string& path);
  /// The unit of a file of the project, or null.
  IUnit* unit(const std::string& path);

  /// What the user has been told since the last call of this.
  std::vector<std::string> takeMessages();
  /// What the compare tool prints that was to be started last; it must have been.
  Ended compareTool();

 private:
  class Door;
  class Starts;

  const Sandbox& m_sandbox;
  std::string m_folder;
  std::filesystem::path m_formerDirectory;
  std::map<std::string, std::optional<std::string>> m_formerEnvironment;
  std::ostringstream m_output;
  std::unique_ptr<Door> m_door;
  std::unique_ptr<Starts> m_starts;
  std::unique_ptr<host::ReferenceHost> m_host;
  std::unique_ptr<CMArchiveItemListWrapper> m_archive;
  test::ScriptedItemView m_window;
};

}  // namespace veldra::live
