#pragma once

#include <cstddef>
#include <map>
#include <memory>
#include <string>
#include <string_view>

#include "cm/host/RunThread.h"

namespace veldra::host {

class CancelSignal;

/// Follows a running child, on the thread that waits for it. Nothing of it may throw.
class ChildWatch {
 public:
  virtual ~ChildWatch() = default;
  /// Bytes as they arrive from either output; they may begin and end anywhere in a line.
  virtual void printed(std::string_view bytes) = 0;
  /// Called again and again, at the latest every thirtieth of a second, until the child has ended.
  virtual void waiting() = 0;
};

/// What every child process of one `Processes` is started with.
struct ChildSettings {
  /// Variables that are set, or replaced, in the child's environment.
  std::map<std::string, std::string> environment;
  /// The most that a child may print on both its outputs together, in bytes.
  std::size_t outputLimit = std::size_t{1} << 30;
  ChildWatch* watch = nullptr;  ///< Not owned; null for none.
};

/// The process runner of the reference host.
///
/// A child is started directly, never through a shell. Its program is looked up in the absolute
/// directories of PATH; the working directory is searched only when the name itself holds a
/// separator. The child starts in `getStatus`, in a session of its own: it has no terminal that it
/// could ask a question on, its standard input is empty, it inherits no other file, and every
/// signal has its default action.
///
/// A child is ended, and its whole process group with it, when its time-out runs out, when it
/// prints more than the limit, and on `requestCancel`: first by the terminate signal, half a second
/// later by the one that cannot be ignored. When a child has ended but something that it left
/// behind still holds its outputs, what they hold is taken, and the rest of the group is ended in
/// the same way after a fifth of a second. What has left the group is left alone,
/// and no longer read.
///
/// A runner and an output file must not outlive the object that made them. The program that uses
/// this class must not ignore SIGCHLD, because the system then withholds how a child ended.
class Processes : public IProcesses {
 public:
  Processes();
  ~Processes() override;
  Processes(const Processes&) = delete;
  Processes& operator=(const Processes&) = delete;

  std::unique_ptr<RunThread> createRunThread(const std::string& command) override;
  std::unique_ptr<IOutputFile> createOutputFile(const std::string& fileName) override;
  /// `file` must come from `createOutputFile` of this class, or be null.
  std::unique_ptr<RunThread> createRunThreadRedirect(const std::string& command,
                                                     IOutputFile* file) override;

  /// The program is looked up as for `createRunThread`. Its parent is the system.
  bool startDetached(const std::string& command) override;

  /// Variables for every child that starts from now on, in place of those of the last call.
  void setChildEnvironment(std::map<std::string, std::string> variables);
  /// A child that prints more than this is ended, with an error line that says so. In bytes.
  void setOutputLimit(std::size_t bytes);

  /// Who follows the children that start from now on; null for nobody. Not owned.
  void setWatch(ChildWatch* watch);

  /// Ends the running child and lets no other start. May be called from a signal handler and from
  /// any thread. The runner then reports `ProcessEnd::Cancelled` with an error line.
  void requestCancel() noexcept;
  [[nodiscard]] bool cancelRequested() const noexcept;
  /// Lets children start again. Not for signal handlers.
  void resetCancel() noexcept;

 private:
  std::unique_ptr<CancelSignal> m_cancel;
  ChildSettings m_settings;
};

}  // namespace veldra::host
