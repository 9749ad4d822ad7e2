#pragma once

#include <functional>
#include <string>

#include "cm/host/RunThread.h"

namespace veldra::host::cli {

/// Sees every command line before it runs. Without processes behind it nothing runs at all: each
/// command then ends at once, well and without a word.
class CommandWatch : public IProcesses {
 public:
  using Listener = std::function<void(const std::string& command)>;

  /// `processes` is null for a dry run.
  CommandWatch(IProcesses* processes, Listener listener)
      : m_processes(processes), m_listener(std::move(listener)) {}

  std::unique_ptr<RunThread> createRunThread(const std::string& command) override;
  std::unique_ptr<IOutputFile> createOutputFile(const std::string& fileName) override;
  std::unique_ptr<RunThread> createRunThreadRedirect(const std::string& command,
                                                     IOutputFile* file) override;

 private:
  IProcesses* m_processes;
  Listener m_listener;
};

}  // namespace veldra::host::cli
