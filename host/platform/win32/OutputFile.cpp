#include "host/platform/win32/OutputFile.h"

#include "host/platform/FileNames.h"
#include "host/platform/Processes.h"
#include "host/platform/win32/WideText.h"

namespace veldra::host {

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

}  // namespace veldra::host
