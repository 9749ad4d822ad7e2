#include "host/cli/Connection.h"

#include <filesystem>
#include <system_error>

#include "cm/core/CMArchive.h"
#include "cm/core/CMFacade.h"
#include "cm/host/IPN.h"
#include "cm/templates/CMProperty.h"
#include "cm/tool/CMToolShellInterface.h"
#include "cm/tool/CommandText.h"
#include "cm/ui/logic/BatchResults.h"
#include "host/cli/CallArguments.h"
#include "host/cli/ProviderConnection.h"
#include "host/cli/UnitOutcome.h"
#include "host/model/PathNames.h"
#include "host/platform/Secrets.h"

namespace veldra::host::cli {

bool isLocalPlace(const std::string& place) {
  return place.find("://") == std::string::npos && !place.starts_with(':');
}

std::string archivePlace(const std::string& where) {
  if (where.empty()) throw CommandError(ExitCode::WrongUsage, "The archive has no name.");
  const std::string place = isLocalPlace(where) ? absolutePath(where) : where;
  if (const std::optional<std::string> reason = unsafeInCommand(place)) {
    throw CommandError(ExitCode::WrongUsage, "The archive's name \"" + place + "\" contains " +
                                                 *reason +
                                                 ", which no command can carry. Choose another "
                                                 "place.");
  }
  return place;
}

std::optional<std::string> createArchive(const std::string& place) {
  std::error_code unknown;
  if (!isLocalPlace(place) || std::filesystem::exists(place, unknown)) return std::nullopt;
  CallArguments arguments;
  arguments.add<CMArchive>(place);
  std::string command;
  std::string extra;
  if (CMProperty::getToolProperty("CreateArchive") == nullptr) return std::nullopt;
  if (CMProperty::ExpandProperty("CreateArchive", arguments.list(), command, extra) != 1) {
    return "The tool's command CreateArchive cannot be made.";
  }
  std::string output;
  std::string errorText;
  const int executed = theCMToolShellInterface().Execute(command, output, errorText, "");
  if (executed != 0 && !theCMToolShellInterface().lastCommandEnd().failed) return std::nullopt;
  const std::string& words = theCMToolShellInterface().lastCommandEnd().words;
  return "The archive " + place + " cannot be made.\n" + firstWords(words) +
         "\ncommand: " + withoutSecrets(command) + adviceLine(words);
}

namespace {

/// Another archive of the project, taken back unless the connection comes about.
class ArchiveChange {
 public:
  ArchiveChange(Session& session, const std::string& place)
      : m_session(session), m_former(CMArchive::getMainArchive()) {
    m_isChange = place != m_former;
    if (!m_isChange) return;
    if (session.project().isReadOnly() && !session.options().dryRun) {
      m_isChange = false;
      m_refusal = session.project().getFullFileName() +
                  " is read-only and cannot keep the name of another archive. Check it out first.";
    } else if (CMArchive::setMainArchive(place) == 0) {
      m_isChange = false;
      m_refusal =
          "The project's tool knows no archive. Choose a tool with \"veldra-cm property set "
          "CMTool NAME\".";
    }
  }
  ArchiveChange(const ArchiveChange&) = delete;
  ArchiveChange& operator=(const ArchiveChange&) = delete;
  ~ArchiveChange() {
    if (!m_isChange) return;
    CMArchive::setMainArchive(m_former);
    m_session.save(false);
  }

  const std::optional<std::string>& refusal() const { return m_refusal; }
  void keep() { m_isChange = false; }

 private:
  Session& m_session;
  std::string m_former;
  bool m_isChange = false;
  std::optional<std::string> m_refusal;
};

/// Empty on success; otherwise why the archive cannot be reached.
std::optional<std::string> connect(Session& session) {
  if (CMArchive::getMainArchive().empty()) {
    return "The project has no archive. Name one with --archive.";
  }
  CallArguments arguments = callArguments(
      {.projectDirectory = session.project().getProjectDirectory()}, session.options().dryRun);
  UnitList units;
  DiagnosticList diagnostics;
  const std::vector<UnitTrace>& traces = session.progress().traces();
  const std::size_t before = traces.size();
  CMFacade::ConnectToArchive(units, arguments.list(), diagnostics);
  const std::string general = generalMessage(diagnostics, {});
  if (!general.empty()) return general;
  if (traces.size() == before) return session.door().lastText();
  if (traces.back().end == UnitEnd::Done) return std::nullopt;
  return "The project cannot be connected to its archive.\n" +
         failureOf(traces.back(), IPN::CMConnectToCMRepository);
}

}  // namespace

std::optional<std::string> connectToArchive(Session& session,
                                            const std::optional<std::string>& place) {
  if (CMProperty::useSccCompliantTool() != 0) return connectToProvider(session, place);
  if (!place) return connect(session);
  ArchiveChange change(session, *place);
  if (change.refusal()) return change.refusal();
  std::optional<std::string> failure = connect(session);
  if (!failure) change.keep();
  return failure;
}

}  // namespace veldra::host::cli
