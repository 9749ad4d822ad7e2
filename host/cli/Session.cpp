#include "host/cli/Session.h"

#include <filesystem>
#include <optional>
#include <system_error>

#include "cm/core/CMFacade.h"
#include "cm/host/IUserMessages.h"
#include "cm/host/MessageIds.h"
#include "cm/templates/CMProperty.h"
#include "host/cli/printing/BytesAsText.h"
#include "host/model/ProjectLoader.h"

namespace veldra::host::cli {

namespace fs = std::filesystem;

namespace {

// Enough for the reason why a command could not be run.
constexpr std::size_t KeptForFailures = std::size_t{64} << 10;
// More than these are told only to who asks for everything.
constexpr std::size_t ShownProblems = 10;

std::ostream* shownWindow(const Invocation& invocation, WindowUse use) {
  Console& console = invocation.console;
  const bool isDocument = invocation.options.json;
  if (use == WindowUse::Explain) return &console.err;
  if (use == WindowUse::Result && !isDocument) return &console.out;
  if (!invocation.options.verbose) return nullptr;
  return isDocument ? &console.err : &console.out;
}

std::string questionAfterCheckIn(IUserMessages& messages) {
  std::string question = messages.loadString(MessageId::ProviderQuestion);
  const std::size_t place = question.find("%1");
  if (place != std::string::npos)
    question.replace(place, 2, messages.loadString(MessageId::CheckedIn));
  return question;
}

/// Without a tool the module leaves every unit out and says no reason.
bool lacksTool(const PropertyLayers& properties) {
  return CMProperty::useSccCompliantTool() == 0 && properties.chosenTool().empty();
}

}  // namespace

std::string nearestProject(const std::string& directory) {
  std::error_code failed;
  fs::path at = fs::absolute(directory.empty() ? "." : directory, failed).lexically_normal();
  if (failed) return {};
  for (;; at = at.parent_path()) {
    if (!projectFilesIn(at.string()).empty()) return at.string();
    if (at == at.parent_path()) return {};
  }
}

Session::Session(const Invocation& invocation, WindowUse window)
    : m_invocation(invocation),
      m_options(invocation.options),
      m_console(invocation.console),
      m_door(invocation.console, invocation.options.force),
      m_window(shownWindow(invocation, window),
               window == WindowUse::Result ? std::string::npos : KeptForFailures),
      m_progress(invocation.console, m_window),
      m_watch(invocation.options.dryRun ? nullptr : &m_processes,
              [this](const std::string& command) { m_progress.noteCommand(command); }),
      m_interruptTarget(m_processes),
      m_host(hostOptions()) {
  installHost(&m_host);
  m_door.setQuitListener([this] { m_progress.stop(); });
  m_door.setPreparation([this] {
    // The failures are listed with the tool's own words.
    m_door.mute(m_host.messages().loadString(MessageId::ErrorPatternMatched));
    // A question of which every answer is the same, about what is told unit by unit.
    m_door.prepareAnswer(questionAfterCheckIn(m_host.messages()), MessageBox::AnswerYes);
  });
  if (!m_options.dryRun) CMFacade::saveCallbackFunc() = [this] { save(true); };
  tellProblems(m_host.problems());
}

Session::~Session() {
  installHost(nullptr);
  // A program of one command.
  m_host.closeForExit();
}

HostOptions Session::hostOptions() {
  HostOptions options;
  options.output = &m_window;
  options.door = &m_door;
  options.progress = &m_progress;
  options.processes = &m_watch;
  options.onlyPlans = m_options.dryRun;
  return options;
}

Project& Session::project() {
  if (m_host.project() == nullptr) {
    throw CommandError(ExitCode::NothingDone, "No project is open.");
  }
  return *m_host.project();
}

bool Session::openProjectIfAny() {
  const std::string place = m_options.project ? *m_options.project : nearestProject("");
  if (place.empty() && !m_options.project) return false;
  openProject(place);
  return true;
}

Project& Session::openToLook() {
  if (openProjectIfAny()) return project();
  throw CommandError(
      ExitCode::NothingDone,
      "There is no project in this folder or above it. Name one with -p, or make one "
      "with \"veldra-cm init\".");
}

Project& Session::openTrusted() {
  Project& opened = openToLook();
  // Before the first command, so that a batch of many units does not fail unit by unit.
  if (!m_options.dryRun && !m_host.trust().isTrusted()) {
    throw CommandError(ExitCode::NothingDone, m_host.trustAdvice());
  }
  return opened;
}

Project& Session::openProject() {
  Project& opened = openTrusted();
  if (lacksTool(m_host.properties())) {
    throw CommandError(ExitCode::NothingDone,
                       "No CM tool is selected. \"veldra-cm connect --tool NAME --archive WHERE\" "
                       "chooses one; \"veldra-cm pack list\" shows those that there are.");
  }
  return opened;
}

Project& Session::openProject(const std::string& directoryOrFile) {
  if (const std::optional<std::string> reason = m_host.open(directoryOrFile)) {
    throw CommandError(ExitCode::NothingDone, *reason);
  }
  Project& opened = project();
  const std::size_t told = opened.problemsSoFar().size();
  tellProblems(opened.problemsSoFar());
  opened.setLoadListener([this, &opened, told] {
    const Problems& all = opened.problemsSoFar();
    tellProblems({all.begin() + static_cast<std::ptrdiff_t>(told), all.end()});
  });
  return opened;
}

void Session::setWindow(WindowUse window) {
  m_window.show(shownWindow(m_invocation, window));
}

void Session::save(bool tells) {
  if (m_options.dryRun) return;
  const Problems problems = m_host.save();
  if (tells) tellProblems(problems);
}

void Session::tellProblems(const Problems& problems) {
  std::size_t told = 0;
  for (const Problem& problem : problems) {
    if (told++ == ShownProblems && !m_options.verbose) {
      m_door.notify("... and " + std::to_string(problems.size() - ShownProblems) +
                        " more; --verbose shows them.",
                    0);
      return;
    }
    m_door.notify(sentence(problem), 0);
  }
}

}  // namespace veldra::host::cli
