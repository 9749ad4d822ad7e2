#include "host/desktop/session/DesktopSession.h"

#include <algorithm>
#include <utility>

#include "cm/core/CMFacade.h"
#include "host/desktop/Text.h"
#include "host/model/RememberedProjects.h"

namespace veldra::host::desktop {

DesktopSession::DesktopSession(Questions& questions, HostOptions options)
    : m_questions(questions),
      m_work(m_output),
      m_door(questions),
      m_host(std::make_unique<ReferenceHost>(complete(std::move(options)))) {
  installHost(m_host.get());
  CMFacade::saveCallbackFunc() = [this] { save(); };
  connect(&m_work, &WorkWatch::cancelled, this, [this] { m_host->requestCancel(); });
  connect(&m_work, &WorkWatch::workEnded, this, [this] { m_host->resetCancel(); });
}

DesktopSession::~DesktopSession() {
  installHost(nullptr);
  m_host->closeForExit();
}

HostOptions DesktopSession::complete(HostOptions options) {
  options.output = &m_output.stream();
  options.clearOutput = [this] { m_output.clear(); };
  options.traceObserver = [this](std::string_view line) { emit traceLine(shown(line)); };
  options.door = &m_door;
  options.progress = &m_work;
  options.faultGuard = &m_work.providerCalls();
  options.childWatch = &m_work;
  return options;
}

bool DesktopSession::open(const std::string& directoryOrFile) {
  const std::optional<std::string> failure = m_host->open(directoryOrFile);
  if (!failure) rememberProject(project()->getVdId(), project()->getFullFileName());
  emit projectChanged();
  if (failure) {
    m_questions.ask({.text = shown(*failure), .icon = QMessageBox::Critical});
    return false;
  }
  tell(project()->problems(), tr("Some files of the project have problems."));
  askForTrust();
  return true;
}

void DesktopSession::askForTrust() {
  CommandTrust& trust = m_host->trust();
  if (trust.isTrusted()) return;
  QString details;
  for (const ForeignCommand& command : trust.commands()) {
    // A value that breaks the line must not look like another command.
    details += shownName(command.key.metaclass + "." + command.key.name + " = " + command.value) +
               "\n    " + shownName(command.source) + "\n";
  }
  const auto answer = m_questions.ask(
      {.text = tr("This project brings commands of its own. They run as soon as you use version "
                  "control. Trust them only when you trust where the project comes from.\n\n"
                  "Trust these commands?"),
       .details = details,
       .icon = QMessageBox::Warning,
       .buttons = QMessageBox::Yes | QMessageBox::No,
       .preset = QMessageBox::No});
  if (answer != QMessageBox::Yes) return;
  if (const auto failure = trust.trust(project()->getFullFileName())) {
    m_questions.ask({.text = shown(*failure), .icon = QMessageBox::Warning});
  }
}

void DesktopSession::close() {
  m_host->close();
  emit projectChanged();
}

bool DesktopSession::hasUnsaved() {
  Project* open = project();
  return open && std::ranges::any_of(open->files(), &UnitCore::isModified);
}

bool DesktopSession::save() {
  std::vector<std::string> files;
  if (Project* open = project()) {
    for (const UnitCore* unit : open->files()) {
      if (unit->isModified()) files.push_back(unit->fullFileName());
    }
  }
  const Problems problems = m_host->save();
  emit saved(files);
  tell(problems, tr("Not everything could be saved."));
  return problems.empty();
}

void DesktopSession::tell(const Problems& problems, const QString& summary) {
  if (problems.empty()) return;
  QString details;
  for (const Problem& problem : problems) details += shown(sentence(problem)) + "\n";
  const bool isOne = problems.size() == 1;
  m_questions.ask({.text = isOne ? shown(sentence(problems.front())) : summary,
                   .details = isOne ? QString() : details,
                   .icon = QMessageBox::Warning});
}

}  // namespace veldra::host::desktop
