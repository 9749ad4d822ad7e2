#include "host/model/NewProject.h"

#include <filesystem>
#include <system_error>

#include "host/model/ModelText.h"
#include "host/model/PathNames.h"
#include "host/model/ProjectFile.h"
#include "host/model/ProjectLoader.h"
#include "host/platform/AtomicFile.h"
#include "host/platform/RealPath.h"

namespace veldra::host {
namespace fs = std::filesystem;

namespace {

std::string projectText(const NewProject& request, const std::string& name) {
  ModelText text = newModelText("Project", name);
  if (request.controlOtherFiles) text.body["controlled"] = Json::array({EveryOtherFile});
  for (const NewProject::Setting& setting : request.properties) {
    Json& metaclass = objectAt(objectAt(objectAt(text.body, "properties"), setting.key.subject),
                               setting.key.metaclass);
    metaclass[setting.key.name] = jsonOfBytes(setting.value);
  }
  return writeModelText(text);
}

bool canBeFileName(const std::string& name) {
  return !name.empty() && !name.starts_with('.') && !name.starts_with('-') &&
         name.find_first_of("/\\:*?\"<>|\r\n") == std::string::npos &&
         name.find('\0') == std::string::npos;
}

}  // namespace

std::optional<std::string> createProject(const NewProject& request, std::string& error) {
  std::error_code failed;
  fs::create_directories(request.directory, failed);
  const std::string directory = failed ? std::string() : realPath(request.directory);
  if (directory.empty()) {
    error = "The folder " + request.directory + " cannot be made: " + failed.message() + ".";
    return std::nullopt;
  }
  if (const std::vector<std::string> present = projectFilesIn(directory); !present.empty()) {
    error = directory + " is a project already: \"" + present.front() + "\". Open that one.";
    return std::nullopt;
  }
  const std::string name = request.name.empty() ? std::string(baseName(directory)) : request.name;
  if (!canBeFileName(name)) {
    error = "\"" + name + "\" cannot be the name of a project file. Give another name.";
    return std::nullopt;
  }
  const std::string file = joinPath(directory, name + FileExtension::Project);
  try {
    if (auto failure = writeFileAtomically(file, projectText(request, name))) {
      error = *failure;
      return std::nullopt;
    }
  } catch (const Json::exception&) {
    error = "A name among the properties is no UTF-8 text. Give another name.";
    return std::nullopt;
  }
  return file;
}

}  // namespace veldra::host
