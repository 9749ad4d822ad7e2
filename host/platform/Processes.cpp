#include "host/platform/Processes.h"

#include "host/platform/CancelSignal.h"
#include "host/platform/ProcessRunner.h"

namespace veldra::host {

Processes::Processes() : m_cancel(std::make_unique<CancelSignal>()) {}
Processes::~Processes() = default;

std::unique_ptr<RunThread> Processes::createRunThread(const std::string& command) {
  return std::make_unique<ProcessRunner>(command, m_settings, *m_cancel,
                                         ProcessRunner::Output::Kept, nullptr);
}

std::unique_ptr<RunThread> Processes::createRunThreadRedirect(const std::string& command,
                                                              IOutputFile* file) {
  const auto output =
      file == nullptr ? ProcessRunner::Output::Nowhere : ProcessRunner::Output::File;
  return std::make_unique<ProcessRunner>(command, m_settings, *m_cancel, output, file);
}

void Processes::setChildEnvironment(std::map<std::string, std::string> variables) {
  m_settings.environment = std::move(variables);
}

void Processes::setWatch(ChildWatch* watch) {
  m_settings.watch = watch;
}

void Processes::setOutputLimit(std::size_t bytes) {
  m_settings.outputLimit = bytes;
}

void Processes::requestCancel() noexcept {
  m_cancel->raise();
}
bool Processes::cancelRequested() const noexcept {
  return m_cancel->isRaised();
}
void Processes::resetCancel() noexcept {
  m_cancel->clear();
}

}  // namespace veldra::host
