#include "host/cli/Connection.h"

#include <filesystem>
#include <functional>
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

bool isToBeMade(const std::string& place) {
  std::error_code unknown;
  return isLocalPlace(place) && !std::filesystem::exists(place, unknown);
}

std::optional<std::string> createArchive(const std::string& place) {
  if (!isToBeMade(place)) return std::nullopt;
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

const PropertyKey ToolKey{IPN::CM, IPN::General, IPN::CMTool};

/// What the project file says from now on, taken back unless the connection comes about.
class ProjectChange {
 public:
  explicit ProjectChange(Session& session) : m_session(session) {}
  ProjectChange(const ProjectChange&) = delete;
  ProjectChange& operator=(const ProjectChange&) = delete;
  ~ProjectChange() {
    if (!m_takeBack) return;
    m_takeBack();
    m_session.save(false);
  }

  /// Nothing, or why the project cannot keep the name of another one of these.
  std::optional<std::string> objection(const std::string& what) const {
    const Project& project = m_session.project();
    if (!project.isReadOnly() || m_session.options().dryRun) return std::nullopt;
    return project.getFullFileName() + " is read-only and cannot keep the name of another " + what +
           ". Check it out first.";
  }
  void noteChange(std::function<void()> takeBack) { m_takeBack = std::move(takeBack); }
  void keep() { m_takeBack = nullptr; }

 private:
  Session& m_session;
  std::function<void()> m_takeBack;
};

/// Nothing on success; otherwise why not.
std::optional<std::string> changeArchive(PropertyLayers& layers, const std::string& place,
                                         ProjectChange& change) {
  const std::string former = CMArchive::getMainArchive();
  if (place == former) return std::nullopt;
  if (auto objection = change.objection("archive")) return objection;
  if (CMArchive::setMainArchive(place) == 0) {
    return "The project's tool knows no archive. Choose a tool with --tool.";
  }
  change.noteChange([&layers, former] {
    // No archive is what is inherited, and not a value of the project's own.
    if (!former.empty()) {
      CMArchive::setMainArchive(former);
      return;
    }
    const Property* const tool = layers.find(ToolKey);
    if (tool != nullptr) layers.resetInProject({IPN::CM, tool->value(), IPN::CMArchive});
  });
  return std::nullopt;
}

/// Nothing on success; otherwise why not.
std::optional<std::string> changeTool(PropertyLayers& layers, const std::string& tool,
                                      ProjectChange& change) {
  const Property* const used = layers.find(ToolKey);
  if (used != nullptr && used->value() == tool) return std::nullopt;
  if (auto objection = change.objection("tool")) return objection;
  std::optional<std::string> former;
  if (const Property* const own = layers.findIn(Origin::Project, ToolKey)) former = own->value();
  layers.setInProject(ToolKey, tool);
  change.noteChange([&layers, former] {
    if (former) {
      layers.setInProject(ToolKey, *former);
    } else {
      layers.resetInProject(ToolKey);
    }
  });
  return std::nullopt;
}

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
  ProjectChange change(session);
  std::optional<std::string> failure = changeArchive(session.host().properties(), *place, change);
  if (!failure) failure = connect(session);
  if (!failure) change.keep();
  return failure;
}

std::optional<std::string> connectProject(Session& session, const ConnectionRequest& request) {
  if (!request.tool) return connectToArchive(session, request.place);
  if (CMProperty::useSccCompliantTool() != 0) {
    return "The project works with a source control provider. \"veldra-cm property set UseSCCtool "
           "No\" ends that.";
  }
  ProjectChange change(session);
  std::optional<std::string> failure =
      changeTool(session.host().properties(), *request.tool, change);
  if (!failure && request.place && !session.options().dryRun)
    failure = createArchive(*request.place);
  if (!failure) failure = connectToArchive(session, request.place);
  if (!failure) change.keep();
  return failure;
}

}  // namespace veldra::host::cli
