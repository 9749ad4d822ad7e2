#pragma once

#include <string>

#include "host/platform/CommandRun.h"
#include "host/platform/win32/EventWait.h"
#include "host/platform/win32/OutputFile.h"

namespace veldra::host {

/// A command line as a child with a job of its own.
class ProcessRunner : public CommandRun {
 public:
  /// Where the child's standard output goes.
  enum class Output { Kept, File, Nowhere };

  /// `file` belongs to `Output::File` and is otherwise null. All references must outlive the
  /// runner.
  ProcessRunner(std::string command, const ChildSettings& settings, const CancelSignal& cancel,
                Output output, const OutputFile* file);

 private:
  bool isCancelled() const override { return m_cancel.isRaised(); }
  Result<Ending> runChild(Start& start, std::uint32_t timeout) override;
  std::string crashText(int exception) const override;
  /// Why the child could not be started; empty when it runs.
  std::string startChild(const Start& start, ChildProcess& child, OutputPipe& output,
                         OutputPipe& errors);
  std::string systemStartError(int error) const;

  const CancelSignal& m_cancel;
  Output m_output;
  const OutputFile* m_file;
};

}  // namespace veldra::host
