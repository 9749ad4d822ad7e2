#include "host/platform/Processes.h"

#include <fcntl.h>

#include "host/platform/posix/CancelSignal.h"
#include "host/platform/posix/ProcessRunner.h"

namespace veldra::host {

Processes::Processes() : m_cancel(std::make_unique<CancelSignal>()) {}
Processes::~Processes() = default;

std::unique_ptr<RunThread> Processes::createRunThread(const std::string& command) {
  return std::make_unique<ProcessRunner>(command, m_settings, *m_cancel,
                                         ProcessRunner::Output::Kept, nullptr);
}

std::unique_ptr<IOutputFile> Processes::createOutputFile(const std::string& fileName) {
  if (fileName.find('\0') != std::string::npos) return nullptr;
  // Without O_NONBLOCK, opening a pipe would wait for somebody to read it.
  FileDescriptor file = aboveStandard(FileDescriptor(::open(
      fileName.c_str(), O_CREAT | O_TRUNC | O_WRONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK, 0666)));
  if (!file) return nullptr;
  ::fcntl(file.get(), F_SETFL, 0);
  return std::make_unique<OutputFile>(std::move(file));
}

std::unique_ptr<RunThread> Processes::createRunThreadRedirect(const std::string& command,
                                                              IOutputFile* file) {
  const auto output =
      file == nullptr ? ProcessRunner::Output::Nowhere : ProcessRunner::Output::File;
  return std::make_unique<ProcessRunner>(command, m_settings, *m_cancel, output,
                                         static_cast<const OutputFile*>(file));
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
