#include "cm/tool/CMToolShellInterface.h"

#include <charconv>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "cm/core/CMOutputer.h"
#include "cm/core/DebugEcho.h"
#include "cm/core/TextTools.h"
#include "cm/host/Host.h"
#include "cm/host/IPN.h"
#include "cm/host/MessageIds.h"
#include "cm/host/SPString.h"
#include "cm/templates/CMProperty.h"

namespace veldra {

namespace {

/// Writes to the CM output window, at once; nothing without a window.
void echo(std::string_view text) {
  std::ostream* const out = getMainCMOutputer()();
  if (out == nullptr) return;
  *out << text;
  out->flush();
}

std::string workingDirectoryOfProject() {
  const std::string directory = CMProperty::getWorkingDir();
  const IProject* const project = CurrentWorkspace::GetActiveProject();
  return directory.empty() && project != nullptr ? project->getDirectory() : directory;
}

bool enterDirectory(const std::string& directory, std::string& errorText) {
  Host* const host = installedHost();
  if (host != nullptr && host->environment().setCurrentDirectory(directory)) return true;
  errorText = formatMessage(MessageId::DirectoryNotEntered, {directory, omGetErrorCodeString()});
  return false;
}

/// Does something in the project's working directory, and goes back. False, with the reason, when
/// the system lets one of the two not happen.
bool inWorkingDirectory(std::string& errorText, const std::function<void()>& work) {
  const std::string previous = omGetFullPathOfDirectory("", errorText);
  if (previous.empty() || !enterDirectory(workingDirectoryOfProject(), errorText)) return false;
  try {
    work();
  } catch (...) {
    // The host failed; its process goes on where it was.
    installedHost()->environment().setCurrentDirectory(previous);
    throw;
  }
  return enterDirectory(previous, errorText);
}

/// The wait in milliseconds; a setting that is missing, zero or no number waits for ever.
std::uint32_t timeOut() {
  std::string value;
  CMProperty::getToolPropertyValue(IPN::CMChildThreadTimeOut, value);
  const std::string_view digits = trimmed(value);
  std::uint32_t milliseconds = 0;
  const auto [end, error] =
      std::from_chars(digits.data(), digits.data() + digits.size(), milliseconds);
  return error == std::errc() && milliseconds != 0 ? milliseconds : RunThread::WaitForever;
}

/// A command line with what follows its redirection sign.
struct RedirectedCommand {
  explicit RedirectedCommand(const std::string& command) : line(command) {
    const std::size_t sign = line.find('>');
    isRedirected = sign != std::string::npos;
    if (!isRedirected) return;
    fileName = line.substr(sign + 1);
    line.erase(sign);
  }
  std::string line;
  bool isRedirected = false;
  std::string fileName;
};

/// What stands beside error lines may be a list of units; a flood is none. In bytes.
constexpr std::size_t MostSetAside = std::size_t{4} << 20;

/// What one run left behind.
struct RunResult {
  std::uint32_t wait = 0;
  bool hasErrorLines = false;
  bool failed = false;  ///< By error lines or a time-out with output: the text is an error text.
  bool endedBadly = false;
  std::optional<int> exitCode{};  ///< Of a child that came to its end by itself.
  std::string setAside{};         ///< What was printed beside error lines.
};

RunResult runAndCollect(IProcesses& processes, const RedirectedCommand& command,
                        OutputFollower follower, std::string& output, std::string& errorText) {
  const std::unique_ptr<IOutputFile> file =
      command.isRedirected ? processes.createOutputFile(command.fileName) : nullptr;
  const std::unique_ptr<RunThread> runner =
      command.isRedirected ? processes.createRunThreadRedirect(command.line, file.get())
                           : processes.createRunThread(command.line);
  if (follower) runner->setOutputFollower(std::move(follower));
  RunResult result;
  result.wait = runner->getStatus(timeOut());
  const bool timedOut = result.wait == RunThread::WaitTimeout;
  if (!runner->errorLines().empty()) {
    runner->errorLines().moveTo(errorText);
    if (runner->outputLines().size() <= MostSetAside) runner->outputLines().moveTo(result.setAside);
    result.hasErrorLines = result.failed = true;
  } else if (!runner->outputLines().empty()) {
    runner->outputLines().moveTo(timedOut ? errorText : output);
    result.failed = timedOut;
  }
  const bool hasExited = runner->end() == ProcessEnd::Exited;
  result.endedBadly = !hasExited || runner->endCode() != 0;
  if (hasExited) result.exitCode = runner->endCode();
  return result;
}

/// What there is to say about a command that failed and printed `text`.
std::string wordsOf(const RunResult& run, const std::string& text) {
  // What it had to say before that is not why it ended.
  if (run.wait == RunThread::WaitTimeout)
    return loadMessage(MessageId::CommandTimedOut) + (text.empty() ? "" : "\n" + text);
  const bool isSilent = text.empty() && run.exitCode.value_or(0) != 0;
  return isSilent ? formatMessage(MessageId::ToolEndedSilently, {std::to_string(*run.exitCode)})
                  : text;
}

/// Tells about a command that ran out of time without a word.
void noticeTimeOut() {
  const std::string text = loadMessage(MessageId::CommandTimedOut);
  echo(text);
  debugEcho({text});
  std::string setting;
  if (omGetEnvVar("General", "ShowMessageOnCMCommandTimeout", setting, "") == 1 &&
      equalsNoCase(setting, "TRUE")) {
    notifyUser(text);
  }
}

constexpr char ErrorPattern[] = "OperationErrorPattern";

/// Whether the text matches the pattern that the tool property holds.
bool matchesProperty(const char* propertyName, const std::string& text) {
  std::string pattern;
  return CMProperty::getToolPropertyValue(propertyName, pattern) && !pattern.empty() &&
         SPString(text).m(pattern, "i");
}

}  // namespace

void CMToolShellInterface::runCommand(const std::string& command, OutputFollower follower,
                                      std::string& output, std::string& errorText) {
  if (command.empty()) {
    debugEcho({"no command to execute\n"});
    return;
  }
  ++m_commandCount;
  echo(command + "\n");
  Host* const host = installedHost();
  IProcesses* const processes = host != nullptr ? host->processes() : nullptr;
  if (processes == nullptr) {
    errorText = formatMessage(MessageId::NoProcessRunner, {command});
    echo(errorText);
    m_end = {.failed = true, .words = errorText};
    return;
  }

  const RedirectedCommand redirected(command);
  RunResult run = runAndCollect(*processes, redirected, std::move(follower), output, errorText);
  m_end.failed = run.endedBadly;
  m_end.setAside = std::move(run.setAside);
  if (run.failed) {
    // The second echo of error lines is intended: once as they come, once as the result.
    if (run.hasErrorLines) echo(errorText);
    echo(errorText);
    checkCommandResults(errorText);
  } else {
    echo(output);
    debugEcho({"command output: ", output, "\n"});
    checkCommandResults(output);
  }
  // The exempted tool runs a graph window and leaves without a word.
  if (run.wait == RunThread::WaitTimeout && output.empty() && errorText.empty() &&
      redirected.line.find("lsvtree -graph") == std::string::npos) {
    noticeTimeOut();
  }
  if (m_end.failed) m_end.words = wordsOf(run, errorText.empty() ? output : errorText);
}

bool CMToolShellInterface::tryCommand(const std::string& command, std::string& output) {
  Host* const host = installedHost();
  IProcesses* const processes = host != nullptr ? host->processes() : nullptr;
  if (processes == nullptr) return false;
  ++m_commandCount;
  std::string printed;
  std::string errorText;
  const RunResult run =
      runAndCollect(*processes, RedirectedCommand(command), {}, printed, errorText);
  if (run.failed || run.endedBadly || run.wait == RunThread::WaitTimeout ||
      matchesProperty(ErrorPattern, printed)) {
    debugEcho({"given up: ", command, "\n", errorText, printed, "\n"});
    return false;
  }
  output = std::move(printed);
  echo(command + "\n");
  echo(output);
  checkCommandResults(output);
  return true;
}

int CMToolShellInterface::Execute(const std::string& command, std::string& output,
                                  std::string& errorText, std::string /*workingDirectory*/) {
  m_end = CommandEnd();
  OutputFollower follower = std::exchange(m_follower, {});
  const bool isWell = inWorkingDirectory(
      errorText, [&] { runCommand(command, std::move(follower), output, errorText); });
  if (!isWell) echo(errorText);
  return isWell ? 1 : 0;
}

bool CMToolShellInterface::TryExecute(const std::string& command, std::string& output) {
  m_end = CommandEnd();
  std::string forgotten;
  bool isWell = false;
  return inWorkingDirectory(forgotten, [&] { isWell = tryCommand(command, output); }) && isWell;
}

void CMToolShellInterface::checkCommandResults(const std::string& text) {
  if (text.empty()) return;
  if (matchesProperty(ErrorPattern, text)) {
    m_end.failed = true;
    notifyUserAndAsk(loadMessage(MessageId::ErrorPatternMatched), MessageBox::IconError);
  } else if (matchesProperty("OperationWarningPattern", text)) {
    notifyUserAndAsk(loadMessage(MessageId::WarningPatternMatched), MessageBox::IconWarning);
  }
}

CMToolShellInterface& theCMToolShellInterface() {
  static CMToolShellInterface instance;
  return instance;
}

}  // namespace veldra
