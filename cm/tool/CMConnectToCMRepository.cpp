#include "cm/tool/CMConnectToCMRepository.h"

#include "cm/core/CMArchive.h"
#include "cm/core/CMFacade.h"
#include "cm/core/DebugEcho.h"
#include "cm/core/TextTools.h"
#include "cm/host/IModel.h"
#include "cm/host/IPN.h"
#include "cm/templates/CMProperty.h"
#include "cm/tool/ToolFrame.h"
#include "cm/tool/UnitCommand.h"

namespace veldra {

namespace {

/// A repository path as tools print it, without blanks and a leading equals sign.
std::string cleanedPath(std::string_view path) {
  path = trimmed(path);
  if (path.starts_with('=')) path = trimmed(path.substr(1));
  return std::string(path);
}

/// Fills the repository's place into the settings that wait for it. Only the first connection does:
/// afterwards the keyword is gone.
void storeRepositoryPath(const std::string& path) {
  for (const char* name : {"Repository", "ArchiveRoot"}) {
    std::string value;
    if (CMProperty::getToolPropertyValue(name, value) && !value.empty()) {
      CMProperty::setToolPropertyValue(name, replaceAll(value, "$ArchivePath", path));
    }
  }
}

/// Reads the repository path out of the connect command's answer; the result of the extraction.
int learnRepository(const std::string& output) {
  std::string path;
  std::string extra;
  int found = 0;
  const int status =
      CMProperty::ExtractByProperty("HeaderInfoItsRepositoryPath", output, path, found, extra);
  debugEcho({"Archive Repository is: '", path, "'\n"});
  if (status == 1 && found != 0) storeRepositoryPath(cleanedPath(path));
  return status;
}

void runPostConnect(ArgumentList& arguments) {
  std::string command;
  std::string output;
  std::string errorText;
  const int expanded =
      CMProperty::ExpandProperty("PostConnectToCMRepository", arguments, command, errorText);
  if (expanded != 1 || command.empty()) return;
  runTraced(command,
            "Executing the following command to perform post connect to archive operations: ",
            "Post connect to archive command returned the following: ", output, errorText);
}

}  // namespace

int CMConnectToCMRepository::operator()(UnitList& units, ArgumentList& arguments,
                                        DiagnosticList& diagnostics) {
  if (!hasCMTool(*this, diagnostics)) return 0;
  if (const CMFacade::SaveCallback& save = CMFacade::saveCallbackFunc()) save();
  IUnit* const unit = units.empty() ? CurrentWorkspace::GetActiveProject() : units.front();
  if (unit != nullptr) chooseArchiveOf(unit);
  UnitProgress progress("Connect to Archive", 1, 1, CMArchive::getMainArchive());

  std::string command;
  std::string output;
  std::string errorText;
  int status =
      CMProperty::ExpandProperty(IPN::CMConnectToCMRepository, arguments, command, errorText);
  const int expanded = status;
  if (status == 1) {
    status = runTraced(command, "Executing the following command to connect to archive: ",
                       "Connect to archive command returned the following: ", output, errorText);
  }
  progress.endsByCommand(expanded, status);
  if (status != 1) return status;
  status = learnRepository(output);
  runPostConnect(arguments);
  return status;
}

}  // namespace veldra
