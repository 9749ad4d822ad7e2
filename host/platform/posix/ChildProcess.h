#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

#include "host/platform/CommandRun.h"
#include "host/platform/posix/FileDescriptor.h"

namespace veldra::host {

/// A started child, the head of a process group of its own. It is not reaped before `finish`, so
/// that its number, and with it that of the group, cannot pass to another process.
class ChildProcess {
 public:
  ChildProcess() = default;
  /// Ends the child and its group when `finish` has not been called.
  ~ChildProcess();
  ChildProcess(const ChildProcess&) = delete;
  ChildProcess& operator=(const ChildProcess&) = delete;

  /// Starts `program`, a path, with these arguments, the first of which is its name, and with the
  /// two descriptors as its outputs. 0, or the system's error number. Call it once.
  [[nodiscard]] int start(const std::string& program, std::vector<std::string>& arguments,
                          const std::map<std::string, std::string>& environment, int output,
                          int errors);

  /// Readable once the child has ended; -1 where the system has no such descriptor, then `hasEnded`
  /// has to be asked from time to time.
  int descriptor() const { return m_descriptor.get(); }
  bool hasEnded() const;

  void signalGroup(int signal) const;

  /// Takes the end of a child that has ended. `endGroup` first ends what is left of its group.
  ChildStatus finish(bool endGroup);

 private:
  pid_t m_process = 0;
  FileDescriptor m_descriptor;
};

}  // namespace veldra::host
