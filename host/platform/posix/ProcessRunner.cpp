#include "host/platform/posix/ProcessRunner.h"

#include <errno.h>
#include <fcntl.h>
#include <limits.h>
#include <string.h>
#include <unistd.h>

#include <array>
#include <exception>

#include "host/platform/CommandLine.h"
#include "host/platform/SystemError.h"
#include "host/platform/posix/ProgramSearch.h"

namespace veldra::host {

namespace {

struct StartError {
  int number;
  const char* text;
};

/// What the system's own words would not tell about a program that exists and may be executed.
constexpr std::array<StartError, 3> StartErrors = {{
    {ENOENT, "the interpreter that its first line names does not exist"},
    {ENOEXEC, "it is neither a program of this system nor a script that begins with #!"},
    {E2BIG, "its command line is too long for the system; pass long texts in a file"},
}};

/// A child would start even in a directory that has been removed, and fail there without a word.
bool workingDirectoryIsGone() {
  std::array<char, PATH_MAX> path;
  return ::getcwd(path.data(), path.size()) == nullptr && errno == ENOENT;
}

std::string tooMuchOutput(std::size_t limit) {
  return "printed more than the " + std::to_string(limit) +
         " bytes that are kept, and was ended. Send its output to a file, or have it print less.";
}

std::string endedBySignal(int signal) {
  const char* const name = ::strsignal(signal);
  return "was ended by signal " + std::to_string(signal) + " (" + (name ? name : "unknown") + ").";
}

}  // namespace

ProcessRunner::ProcessRunner(std::string command, const ChildSettings& settings,
                             const CancelSignal& cancel, Output output, const OutputFile* file)
    : m_command(std::move(command)),
      m_settings(settings),
      m_cancel(cancel),
      m_output(output),
      m_file(file) {}

std::uint32_t ProcessRunner::getStatus(std::uint32_t timeout) {
  if (m_end == ProcessEnd::Running) {
    try {
      run(timeout);
    } catch (const std::exception& problem) {
      // Nearly always memory; what the output took of it is needed again.
      m_outputLines = LineList();
      m_errorLines = LineList();
      fail(ProcessEnd::Cancelled, "'" + m_name + "' was ended: " + problem.what() + ".");
    }
  }
  return m_end == ProcessEnd::TimedOut ? WaitTimeout : 0;
}

void ProcessRunner::run(std::uint32_t timeout) {
  if (m_cancel.isRaised()) {
    fail(ProcessEnd::Cancelled, "The command was not started, because the work was cancelled.");
    return;
  }
  OutputPipe output(m_outputLines, m_settings.watch);
  OutputPipe errors(m_errorLines, m_settings.watch);
  ChildProcess child;
  if (const std::string reason = start(child, output, errors); !reason.empty()) {
    fail(ProcessEnd::CouldNotStart, reason);
    return;
  }
  OutputCollector collector(child, output, errors, m_cancel, m_settings);
  const auto stop = collector.run(timeout);
  conclude(stop, child.finish(collector.wasForced()), errors.endsInsideLine());
}

std::string ProcessRunner::start(ChildProcess& child, OutputPipe& output, OutputPipe& errors) {
  auto arguments = splitCommandLine(m_command);
  if (!arguments) return arguments.error();
  if (arguments->empty()) return "The command line is empty.";
  m_name = arguments->front();
  if (workingDirectoryIsGone()) {
    return "'" + m_name + "' was not started, because the working directory does not exist any " +
           "more. Change to a directory that exists.";
  }
  const auto program = findProgram(m_name);
  if (!program) return program.error();

  FileDescriptor nowhere;
  int childOutput = -1;
  if (m_output == Output::Kept) childOutput = output.open();
  if (m_output == Output::File) childOutput = m_file->descriptor();
  if (m_output == Output::Nowhere) {
    nowhere = aboveStandard(FileDescriptor(::open("/dev/null", O_WRONLY | O_CLOEXEC)));
    childOutput = nowhere.get();
  }
  if (childOutput < 0) return startError(errno);
  const int childErrors = errors.open();
  if (childErrors < 0) return startError(errno);
  const int error =
      child.start(*program, *arguments, m_settings.environment, childOutput, childErrors);
  return error == 0 ? std::string() : startError(error);
}

std::string ProcessRunner::startError(int error) const {
  std::string reason = systemErrorText(error);
  for (const StartError& known : StartErrors) {
    if (known.number == error) reason = known.text;
  }
  return "'" + m_name + "' could not be started: " + reason + ".";
}

void ProcessRunner::fail(ProcessEnd end, const std::string& line) {
  m_end = end;
  m_errorLines.append(line);
  m_errorLines.append("\n");
}

void ProcessRunner::conclude(OutputCollector::Stop stop, ChildStatus status, bool insideLine) {
  using Stop = OutputCollector::Stop;
  using Kind = ChildStatus::Kind;
  // The module has words of its own for a time-out, and shows what was printed until then.
  if (stop == Stop::TimedOut) {
    m_end = ProcessEnd::TimedOut;
    return;
  }
  if (stop == Stop::None && status.kind == Kind::Exited) {
    m_end = ProcessEnd::Exited;
    m_endCode = status.number;
    return;
  }
  const std::string line = (insideLine ? "\n'" : "'") + m_name + "' ";
  if (stop == Stop::Cancelled) {
    fail(ProcessEnd::Cancelled, line + "was cancelled.");
  } else if (stop == Stop::TooMuchOutput) {
    fail(ProcessEnd::Cancelled, line + tooMuchOutput(m_settings.outputLimit));
  } else if (status.kind == Kind::Signalled) {
    fail(ProcessEnd::Crashed, line + endedBySignal(status.number));
    m_endCode = status.number;
  } else {
    fail(ProcessEnd::Crashed, line + "ended in a way that the system does not tell.");
  }
}

}  // namespace veldra::host
