#pragma once

#include <functional>
#include <optional>
#include <string>

#include "cm/host/RunThread.h"

namespace veldra::host {

/// The one door to child processes: every command line of the module comes through here and is
/// started only when nothing speaks against it.
class GuardedProcesses : public IProcesses {
 public:
  /// Why the command line must not be started, in a sentence; nothing when it may.
  using Objection = std::function<std::optional<std::string>(const std::string& command)>;

  /// `processes` must outlive the object.
  GuardedProcesses(IProcesses& processes, Objection objection)
      : m_processes(processes), m_objection(std::move(objection)) {}

  std::unique_ptr<RunThread> createRunThread(const std::string& command) override;
  std::unique_ptr<IOutputFile> createOutputFile(const std::string& fileName) override;
  std::unique_ptr<RunThread> createRunThreadRedirect(const std::string& command,
                                                     IOutputFile* file) override;
  bool startDetached(const std::string& command) override;

 private:
  IProcesses& m_processes;
  Objection m_objection;
};

}  // namespace veldra::host
