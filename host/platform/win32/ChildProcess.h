#pragma once

#include <map>
#include <string>
#include <vector>

#include "host/platform/CommandRun.h"
#include "host/platform/win32/SystemHandle.h"

namespace veldra::host {

/// A started child in a job of its own, which holds everything that it starts in turn.
class ChildProcess {
 public:
  ChildProcess() = default;
  /// Ends the child and all in its job when `finish` has not been called.
  ~ChildProcess();
  ChildProcess(const ChildProcess&) = delete;
  ChildProcess& operator=(const ChildProcess&) = delete;

  /// Starts `program`, a path, with these arguments, the first of which is its name. The child has
  /// the two handles as its outputs, an empty input, and inherits nothing else. 0, or the system's
  /// error number. Call it once.
  [[nodiscard]] int start(const std::string& program, const std::vector<std::string>& arguments,
                          const std::map<std::string, std::string>& environment, HANDLE output,
                          HANDLE errors);

  /// Set once the child has ended.
  HANDLE process() const { return m_process.get(); }

  /// Ends everything in the job at once. What has left it is left alone.
  void endJob() const;

  /// Takes the end of a child that has ended. `endJob` first ends what is left of its job.
  ChildStatus finish(bool endJob);

 private:
  SystemHandle m_process;
  SystemHandle m_job;
};

}  // namespace veldra::host
