#pragma once

#include <string>

#include "host/platform/CommandRun.h"

namespace veldra::host {

class CancelSignal;
class ChildProcess;
class OutputPipe;

/// A command line as a child that ends with all that it has started: the head of a process group
/// (posix/) or of a job (win32/) of its own.
class ProcessRunner : public CommandRun {
 public:
  /// Where the child's standard output goes.
  enum class Output { Kept, File, Nowhere };

  /// `file` belongs to `Output::File` and is otherwise null. All references must outlive the
  /// runner.
  ProcessRunner(std::string command, const ChildSettings& settings, const CancelSignal& cancel,
                Output output, const IOutputFile* file)
      : CommandRun(std::move(command), settings),
        m_cancel(cancel),
        m_output(output),
        m_file(file) {}

 private:
  bool isCancelled() const override;
  Result<Ending> runChild(Start& start, std::uint32_t timeout) override;
  std::string crashText(int number) const override;
  /// Why the child could not be started; empty when it runs.
  std::string startChild(Start& start, ChildProcess& child, OutputPipe& output, OutputPipe& errors);
  std::string systemStartError(int error) const;
  /// What the system's own words would not tell about a program that exists; null for other errors.
  static const char* knownStartError(int error);

  const CancelSignal& m_cancel;
  Output m_output;
  const IOutputFile* m_file;
};

}  // namespace veldra::host
