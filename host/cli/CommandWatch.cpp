#include "host/cli/CommandWatch.h"

namespace veldra::host::cli {

namespace {

/// The run of a command that is only planned.
class PlannedRun : public RunThread {
 public:
  std::uint32_t getStatus(std::uint32_t /*timeout*/) override { return 0; }
  LineList& errorLines() override { return m_nothing; }
  LineList& outputLines() override { return m_nothing; }
  ProcessEnd end() const override { return ProcessEnd::Exited; }
  int endCode() const override { return 0; }

 private:
  LineList m_nothing;
};

}  // namespace

std::unique_ptr<RunThread> CommandWatch::createRunThread(const std::string& command) {
  m_listener(command);
  if (m_processes == nullptr) return std::make_unique<PlannedRun>();
  return m_processes->createRunThread(command);
}

std::unique_ptr<IOutputFile> CommandWatch::createOutputFile(const std::string& fileName) {
  return m_processes != nullptr ? m_processes->createOutputFile(fileName) : nullptr;
}

std::unique_ptr<RunThread> CommandWatch::createRunThreadRedirect(const std::string& command,
                                                                 IOutputFile* file) {
  m_listener(command);
  if (m_processes == nullptr) return std::make_unique<PlannedRun>();
  return m_processes->createRunThreadRedirect(command, file);
}

}  // namespace veldra::host::cli
