#include "host/cli/CommandWatch.h"

#include "host/platform/EndedRun.h"

namespace veldra::host::cli {

std::unique_ptr<RunThread> CommandWatch::createRunThread(const std::string& command) {
  m_listener(command);
  if (m_processes == nullptr) return std::make_unique<EndedRun>();
  return m_processes->createRunThread(command);
}

std::unique_ptr<IOutputFile> CommandWatch::createOutputFile(const std::string& fileName) {
  return m_processes != nullptr ? m_processes->createOutputFile(fileName) : nullptr;
}

std::unique_ptr<RunThread> CommandWatch::createRunThreadRedirect(const std::string& command,
                                                                 IOutputFile* file) {
  m_listener(command);
  if (m_processes == nullptr) return std::make_unique<EndedRun>();
  return m_processes->createRunThreadRedirect(command, file);
}

}  // namespace veldra::host::cli
