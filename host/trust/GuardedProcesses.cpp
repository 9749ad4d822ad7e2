#include "host/trust/GuardedProcesses.h"

#include "host/platform/EndedRun.h"

namespace veldra::host {

namespace {
std::unique_ptr<RunThread> refusedRun(const std::string& reason) {
  return std::make_unique<EndedRun>(ProcessEnd::CouldNotStart, reason + '\n');
}
}  // namespace

std::unique_ptr<RunThread> GuardedProcesses::createRunThread(const std::string& command) {
  if (const std::optional<std::string> reason = m_objection(command)) return refusedRun(*reason);
  return m_processes.createRunThread(command);
}

std::unique_ptr<IOutputFile> GuardedProcesses::createOutputFile(const std::string& fileName) {
  // Making the file empties one that is there, so it is no more harmless than a command.
  if (m_objection({})) return nullptr;
  return m_processes.createOutputFile(fileName);
}

std::unique_ptr<RunThread> GuardedProcesses::createRunThreadRedirect(const std::string& command,
                                                                     IOutputFile* file) {
  if (const std::optional<std::string> reason = m_objection(command)) return refusedRun(*reason);
  return m_processes.createRunThreadRedirect(command, file);
}

bool GuardedProcesses::startDetached(const std::string& command) {
  // The host's own tools are started this way; no project has a say in the command.
  return m_processes.startDetached(command);
}

}  // namespace veldra::host
