#include "host/model/ProjectLoader.h"

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <utility>

#include "host/model/HeadCache.h"
#include "host/model/ModelFileHandler.h"
#include "host/model/PathNames.h"
#include "host/model/UnitLoader.h"
#include "host/platform/AtomicFile.h"
#include "host/platform/RealPath.h"

namespace veldra::host {
namespace fs = std::filesystem;

std::vector<std::string> projectFilesIn(const std::string& directory) {
  std::vector<std::string> files;
  std::error_code failed;
  for (fs::directory_iterator at(directory, failed), end; !failed && at != end;
       at.increment(failed)) {
    std::string name(baseName(at->path().string()));
    if (FileTypes::isProjectFile(name) && !name.starts_with('.')) files.push_back(std::move(name));
  }
  std::sort(files.begin(), files.end());
  return files;
}

std::string findProjectFile(const std::string& directoryOrFile, std::string& error) {
  const std::string path = realPath(directoryOrFile.empty() ? "." : directoryOrFile);
  if (path.empty()) {
    error = directoryOrFile + " does not exist. Name the folder of a project, or its project file.";
    return {};
  }
  std::error_code unknown;
  if (!fs::is_directory(path, unknown) || FileTypes::isProjectFile(path)) return path;
  const std::vector<std::string> files = projectFilesIn(path);
  if (files.size() == 1) return joinPath(path, files.front());
  if (files.empty()) {
    error = "There is no project file in " + path + ". Make a project of the folder with \"init\".";
    return {};
  }
  error = "There are several project files in " + path + ":";
  for (const std::string& file : files) error += " \"" + file + "\"";
  error += ". Name the one that is meant, or move the others away.";
  return {};
}

std::unique_ptr<Project> loadProject(const std::string& projectFile, PropertyLayers& layers,
                                     std::string& error) {
  if (!FileTypes::isProjectFile(projectFile)) {
    error = projectFile + " is no project file. Name a file that ends with " +
            std::string(FileExtension::Project) + ", or its folder.";
    return nullptr;
  }
  const Result<std::string> bytes = readFile(projectFile, ModelFileLimit);
  if (!bytes) {
    error = bytes.error() +
            " See to the rights of the project file, fetch it from the archive or restore it from "
            "a backup.";
    return nullptr;
  }
  Problem fatal;
  Problems problems;
  std::optional<ProjectFile> file = parseProjectFile(*bytes, fatal, problems);
  if (!file) {
    fatal.file = projectFile;
    error = sentence(fatal);
    return nullptr;
  }
  const UnitHead head = readUnitHead(projectFile, nullptr);
  auto project =
      std::make_unique<Project>(std::make_unique<FolderTree>(std::string(parentPath(projectFile))),
                                std::string(baseName(projectFile)), std::move(*file), head, layers);
  for (Problem& problem : problems) {
    problem.file = projectFile;
    project->addProblem(problem);
  }
  if (std::optional<Problem> left = leftBehindCopy(projectFile)) project->addProblem(*left);
  project->setUnitSource([cache = headCacheFile(layers.files().cacheDirectory, projectFile)](
                             Project& loaded) { loadUnits(loaded, cache); });
  return project;
}

}  // namespace veldra::host
