#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>

#include "cm/host/Export.h"

namespace veldra {

/// The lines that a child printed on one of its outputs, each with its line end, in the order
/// printed. They stand in one text that `moveTo` can hand over as it is, so that a flood is held
/// once.
class VELDRA_CM_EXPORT LineList {
 public:
  LineList() = default;
  LineList(const LineList&) = delete;
  LineList& operator=(const LineList&) = delete;
  LineList(LineList&&) = default;
  LineList& operator=(LineList&&) = default;

  /// Adds bytes as they arrive; they may begin and end anywhere in a line.
  void append(std::string_view bytes);
  /// Memory for what comes next, which nobody has touched yet: a host may tell the system how to
  /// provide it.
  std::span<char> untouched();

  /// What has come so far; valid until more comes.
  std::string_view text() const { return m_text; }
  bool empty() const { return m_text.empty(); }
  /// All lines together, in bytes.
  std::size_t size() const { return m_text.size(); }
  /// Appends every line to `text`, with nothing between them, and is empty afterwards.
  void moveTo(std::string& text);

 private:
  void makeRoom(std::size_t bytes);

  std::string m_text;
};

/// The closed list of ways in which a child process ends.
enum class ProcessEnd { Running, CouldNotStart, Exited, Crashed, TimedOut, Cancelled };

/// Told all that a child has printed on its output so far, each time that there is more.
using OutputFollower = std::function<void(std::string_view soFar)>;

/// Base of the runners.
class ThreadObject {
 public:
  virtual ~ThreadObject() = default;
};

/// Runs one command line as a child process, without a shell.
///
/// The line is split into arguments by these rules: blanks and tabs separate; double quotes group;
/// a backslash is an ordinary character except before a double quote, where 2n of them stand for n
/// and 2n+1 for n and a literal quote. The child's input is empty, and it inherits no files. A
/// child that could not be started, or that a signal ended, leaves one error line that says so.
class RunThread : public ThreadObject {
 public:
  static constexpr std::uint32_t WaitForever = 0xFFFFFFFFU;
  /// The wait ran out (WAIT_TIMEOUT of the published Win32 interface, winbase.h).
  static constexpr std::uint32_t WaitTimeout = 258;

  /// Waits up to `timeout` milliseconds for the child to end. 0, or `WaitTimeout`; then the child
  /// and everything that it started have been ended. Both lists are complete afterwards.
  virtual std::uint32_t getStatus(std::uint32_t timeout) = 0;

  /// Before `getStatus`: the follower is called while that waits, on its thread, and may throw. A
  /// host need not do that; the output is complete in the end in any case.
  virtual void setOutputFollower(OutputFollower follower) { (void)follower; }

  virtual LineList& errorLines() = 0;
  /// Empty for a runner whose output goes to a file. Error lines stand for the result of a command
  /// that printed any; beside them no more than a list of units is looked for here, so a runner may
  /// then drop what the output goes on to print beyond a megabyte.
  virtual LineList& outputLines() = 0;

  virtual ProcessEnd end() const = 0;
  /// The exit code of a child that exited, the signal of one that crashed, otherwise 0.
  virtual int endCode() const = 0;
};

/// An open file for a child's output; destroying it closes the file.
class IOutputFile {
 public:
  virtual ~IOutputFile() = default;
};

/// The host's process runner. A host without one cannot use the command-line back end.
class IProcesses {
 public:
  virtual ~IProcesses() = default;
  /// A runner for the command line; the child may start now or in `getStatus`. Never null.
  virtual std::unique_ptr<RunThread> createRunThread(const std::string& command) = 0;
  /// Creates or empties a file that a child can write. Null when that fails.
  virtual std::unique_ptr<IOutputFile> createOutputFile(const std::string& fileName) = 0;
  /// As `createRunThread`, with the child's standard output in `file` (null: thrown away), which
  /// must outlive the runner.
  virtual std::unique_ptr<RunThread> createRunThreadRedirect(const std::string& command,
                                                             IOutputFile* file) = 0;
  /// Starts a program that lives on by itself: in the current directory, with this process's own
  /// input and outputs, its windows shown as usual. Nobody waits for it, and nothing ends it with
  /// this process. False when it cannot be started, or the host has no such facility.
  virtual bool startDetached(const std::string& command) {
    (void)command;
    return false;
  }
};

}  // namespace veldra
