#include "host/platform/CommandRun.h"

#include <exception>

#include "host/platform/CommandLine.h"
#include "host/platform/ProgramSearch.h"

namespace veldra::host {

namespace {

std::string tooMuchOutput(std::size_t limit) {
  return "printed more than the " + std::to_string(limit) +
         " bytes that are kept, and was ended. Send its output to a file, or have it print less.";
}

}  // namespace

std::uint32_t CommandRun::getStatus(std::uint32_t timeout) {
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

void CommandRun::run(std::uint32_t timeout) {
  if (isCancelled()) {
    fail(ProcessEnd::Cancelled, "The command was not started, because the work was cancelled.");
    return;
  }
  Result<Start> start = prepare();
  if (!start) {
    fail(ProcessEnd::CouldNotStart, start.error());
    return;
  }
  const Result<Ending> ending = runChild(*start, timeout);
  if (ending) {
    conclude(*ending);
  } else {
    fail(ProcessEnd::CouldNotStart, ending.error());
  }
}

Result<CommandRun::Start> CommandRun::prepare() {
  auto arguments = splitCommandLine(m_command);
  if (!arguments) return Result<Start>::failure(arguments.error());
  if (arguments->empty()) return Result<Start>::failure("The command line is empty.");
  m_name = arguments->front();
  const auto program = findProgram(m_name);
  if (!program) return Result<Start>::failure(program.error());
  return Start{*program, std::move(*arguments)};
}

std::string CommandRun::startError(std::string_view reason) const {
  std::string sentence = "'" + m_name + "' could not be started: ";
  return sentence.append(reason).append(".");
}

void CommandRun::fail(ProcessEnd end, const std::string& line) {
  m_end = end;
  m_errorLines.append(line);
  m_errorLines.append("\n");
}

void CommandRun::conclude(const Ending& ending) {
  using Stop = ChildWait::Stop;
  using Kind = ChildStatus::Kind;
  // The module has words of its own for a time-out, and shows what was printed until then.
  if (ending.stop == Stop::TimedOut) {
    m_end = ProcessEnd::TimedOut;
    return;
  }
  const ChildStatus& status = ending.status;
  if (ending.stop == Stop::None && status.kind == Kind::Exited) {
    m_end = ProcessEnd::Exited;
    m_endCode = status.number;
    return;
  }
  const std::string line = (ending.insideLine ? "\n'" : "'") + m_name + "' ";
  if (ending.stop == Stop::Cancelled) {
    fail(ProcessEnd::Cancelled, line + "was cancelled.");
  } else if (ending.stop == Stop::TooMuchOutput) {
    fail(ProcessEnd::Cancelled, line + tooMuchOutput(m_settings.outputLimit));
  } else if (status.kind == Kind::Crashed) {
    fail(ProcessEnd::Crashed, line + "was ended by " + crashText(status.number) + ".");
    m_endCode = status.number;
  } else {
    fail(ProcessEnd::Crashed, line + "ended in a way that the system does not tell.");
  }
}

}  // namespace veldra::host
