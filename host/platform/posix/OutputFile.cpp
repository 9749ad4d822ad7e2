#include "host/platform/posix/OutputFile.h"

#include <fcntl.h>

#include "host/platform/Processes.h"

namespace veldra::host {

std::unique_ptr<IOutputFile> Processes::createOutputFile(const std::string& fileName) {
  if (fileName.find('\0') != std::string::npos) return nullptr;
  // Without O_NONBLOCK, opening a pipe would wait for somebody to read it.
  FileDescriptor file = aboveStandard(FileDescriptor(::open(
      fileName.c_str(), O_CREAT | O_TRUNC | O_WRONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK, 0666)));
  if (!file) return nullptr;
  ::fcntl(file.get(), F_SETFL, 0);
  return std::make_unique<OutputFile>(std::move(file));
}

}  // namespace veldra::host
