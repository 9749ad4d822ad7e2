#include "host/platform/Processes.h"

#include "host/platform/FileNames.h"
#include "host/platform/win32/CancelSignal.h"
#include "host/platform/win32/ProcessRunner.h"
#include "host/platform/win32/WideText.h"

namespace veldra::host {

Processes::Processes() : m_cancel(std::make_unique<CancelSignal>()) {}
Processes::~Processes() = default;

std::unique_ptr<RunThread> Processes::createRunThread(const std::string& command) {
  return std::make_unique<ProcessRunner>(command, m_settings, *m_cancel,
                                         ProcessRunner::Output::Kept, nullptr);
}

std::unique_ptr<IOutputFile> Processes::createOutputFile(const std::string& fileName) {
  const std::wstring name = nativePath(fileName);
  if (name.empty() || windowsNameProblem(fileName)) return nullptr;
  // Nobody else may open it while the child writes.
  SECURITY_ATTRIBUTES inherited{sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
  SystemHandle file(CreateFileW(name.c_str(), GENERIC_WRITE, 0, &inherited, CREATE_ALWAYS,
                                FILE_ATTRIBUTE_NORMAL, nullptr));
  if (!file || GetFileType(file.get()) != FILE_TYPE_DISK) return nullptr;
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
