#include "cm/host/IModel.h"

#include "cm/host/Host.h"

namespace veldra {

namespace {
IModel* model() {
  Host* host = installedHost();
  return host != nullptr ? &host->model() : nullptr;
}
}  // namespace

namespace CurrentWorkspace {

IProject* GetActiveProject() {
  return model() != nullptr ? model()->activeProject() : nullptr;
}

IProject* getCurrentProject() {
  return model() != nullptr ? model()->currentProject() : nullptr;
}

IWorkspace* getWorkspace() {
  return model() != nullptr ? model()->workspace() : nullptr;
}

void ApplySavedUnitsListToNonActiveProjects() {
  if (model() != nullptr) model()->applySavedUnitsListToNonActiveProjects();
}

}  // namespace CurrentWorkspace

IUnit* IUnit::getByFile(const std::string& fileName) {
  return model() != nullptr ? model()->unitByFile(fileName) : nullptr;
}

std::unique_ptr<IObIterator> IUnit::repositoryFiles() {
  return model() != nullptr ? model()->repositoryFiles() : nullptr;
}

bool IUnit::isFullPathRepFiles() {
  return model() != nullptr && model()->isFullPathRepFiles();
}

std::string IProject::fileExtension2UnitType(const std::string& suffix) {
  return model() != nullptr ? model()->unitTypeOfExtension(suffix) : std::string();
}

std::string IProject::staticGetFolderExtension() {
  return model() != nullptr ? model()->folderExtension() : std::string();
}

std::string IProject::staticGetNewFileExtension() {
  return model() != nullptr ? model()->newFileExtension() : std::string();
}

std::string IProject::staticGetOldFileExtension() {
  return model() != nullptr ? model()->oldFileExtension() : std::string();
}

}  // namespace veldra
