#pragma once

#include <string>

#include "host/platform/Processes.h"
#include "host/platform/posix/OutputCollector.h"
#include "host/platform/posix/OutputFile.h"

namespace veldra::host {

/// Runs one command line, from the start of the child to its end, within `getStatus`.
class ProcessRunner : public RunThread {
 public:
  /// Where the child's standard output goes.
  enum class Output { Kept, File, Nowhere };

  /// `file` belongs to `Output::File` and is otherwise null. All references must outlive the
  /// runner.
  ProcessRunner(std::string command, const ChildSettings& settings, const CancelSignal& cancel,
                Output output, const OutputFile* file);

  std::uint32_t getStatus(std::uint32_t timeout) override;
  LineList& errorLines() override { return m_errorLines; }
  LineList& outputLines() override { return m_outputLines; }
  ProcessEnd end() const override { return m_end; }
  int endCode() const override { return m_endCode; }

 private:
  void run(std::uint32_t timeout);
  /// Why the child could not be started; empty when it runs.
  std::string start(ChildProcess& child, OutputPipe& output, OutputPipe& errors);
  std::string startError(int error) const;
  void fail(ProcessEnd end, const std::string& line);
  void conclude(OutputCollector::Stop stop, ChildStatus status, bool insideLine);

  std::string m_command;
  const ChildSettings& m_settings;
  const CancelSignal& m_cancel;
  Output m_output;
  const OutputFile* m_file;
  /// The program's name as the command has it.
  std::string m_name;
  LineList m_outputLines;
  LineList m_errorLines;
  ProcessEnd m_end = ProcessEnd::Running;
  int m_endCode = 0;
};

}  // namespace veldra::host
