#include "host/platform/ProcessRunner.h"

#include <errno.h>
#include <fcntl.h>
#include <limits.h>
#include <string.h>
#include <unistd.h>

#include <array>

#include "host/platform/NumberedText.h"
#include "host/platform/posix/ChildProcess.h"
#include "host/platform/posix/OutputFile.h"
#include "host/platform/posix/OutputPipe.h"

namespace veldra::host {

namespace {

constexpr std::array<NumberedText<int>, 3> StartErrors = {{
    {ENOENT, "the interpreter that its first line names does not exist"},
    {ENOEXEC, "it is neither a program of this system nor a script that begins with #!"},
    {E2BIG, "its command line is too long for the system; pass long texts in a file"},
}};

/// A child would start even in a directory that has been removed, and fail there without a word.
bool workingDirectoryIsGone() {
  std::array<char, PATH_MAX> path;
  return ::getcwd(path.data(), path.size()) == nullptr && errno == ENOENT;
}

}  // namespace

std::string ProcessRunner::startChild(Start& start, ChildProcess& child, OutputPipe& output,
                                      OutputPipe& errors) {
  if (workingDirectoryIsGone()) {
    return "'" + name() + "' was not started, because the working directory does not exist any " +
           "more. Change to a directory that exists.";
  }
  FileDescriptor nowhere;
  int childOutput = -1;
  if (m_output == Output::Kept) childOutput = output.open();
  if (m_output == Output::File) childOutput = static_cast<const OutputFile*>(m_file)->descriptor();
  if (m_output == Output::Nowhere) {
    nowhere = aboveStandard(FileDescriptor(::open("/dev/null", O_WRONLY | O_CLOEXEC)));
    childOutput = nowhere.get();
  }
  if (childOutput < 0) return systemStartError(errno);
  const int childErrors = errors.open();
  if (childErrors < 0) return systemStartError(errno);
  const int error =
      child.start(start.program, start.arguments, settings().environment, childOutput, childErrors);
  return error == 0 ? std::string() : systemStartError(error);
}

const char* ProcessRunner::knownStartError(int error) {
  return textOf(StartErrors, error);
}

std::string ProcessRunner::crashText(int signal) const {
  const char* const name = ::strsignal(signal);
  return "signal " + std::to_string(signal) + " (" + (name ? name : "unknown") + ")";
}

}  // namespace veldra::host
