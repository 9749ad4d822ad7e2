#pragma once

#include "cm/host/RunThread.h"
#include "host/platform/posix/FileDescriptor.h"

namespace veldra::host {

/// A file that takes a child's standard output.
class OutputFile : public IOutputFile {
 public:
  explicit OutputFile(FileDescriptor file) : m_file(std::move(file)) {}
  int descriptor() const { return m_file.get(); }

 private:
  FileDescriptor m_file;
};

}  // namespace veldra::host
