#pragma once

#include "cm/host/RunThread.h"
#include "host/platform/win32/SystemHandle.h"

namespace veldra::host {

/// A file that takes a child's standard output.
class OutputFile : public IOutputFile {
 public:
  explicit OutputFile(SystemHandle file) : m_file(std::move(file)) {}
  HANDLE handle() const { return m_file.get(); }

 private:
  SystemHandle m_file;
};

}  // namespace veldra::host
