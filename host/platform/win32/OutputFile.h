#pragma once

#include "cm/host/RunThread.h"
#include "host/platform/win32/Handle.h"

namespace veldra::host {

/// A file that takes a child's standard output.
class OutputFile : public IOutputFile {
 public:
  explicit OutputFile(Handle file) : m_file(std::move(file)) {}
  HANDLE handle() const { return m_file.get(); }

 private:
  Handle m_file;
};

}  // namespace veldra::host
