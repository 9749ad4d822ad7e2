#include "host/model/Model.h"

#include <vector>

#include "host/model/ProjectLoader.h"

namespace veldra::host {
namespace {

class FileIterator : public IObIterator {
 public:
  explicit FileIterator(const Project& project) : m_project(project) {}
  IUnit* first() override {
    m_at = 0;
    return next();
  }
  IUnit* next() override {
    if (m_at >= m_project.files().size()) return nullptr;
    return &m_project.files()[m_at++]->unit();
  }

 private:
  const Project& m_project;
  std::size_t m_at = 0;
};

}  // namespace

std::optional<std::string> Model::open(const std::string& directoryOrFile) {
  close();
  std::string error;
  const std::string file = findProjectFile(directoryOrFile, error);
  if (!file.empty()) m_project = loadProject(file, m_layers, error);
  if (!m_project) return error;
  m_workspace = std::make_unique<Workspace>(*m_project);
  return std::nullopt;
}

void Model::close() {
  m_workspace.reset();
  m_project.reset();
}

void Model::leaveToSystem() {
  // Never destroyed, so that what is left stays somebody's.
  static std::vector<Project*>& left = *new std::vector<Project*>;
  m_workspace.reset();
  if (m_project) left.push_back(m_project.release());
}

IUnit* Model::unitByFile(const std::string& fileName) {
  UnitCore* unit = m_project ? m_project->unitByFile(fileName) : nullptr;
  return unit ? &unit->unit() : nullptr;
}

std::unique_ptr<IObIterator> Model::repositoryFiles() {
  if (!m_project) return nullptr;
  return std::make_unique<FileIterator>(*m_project);
}

std::string Model::unitTypeOfExtension(const std::string& suffix) const {
  const FileTypes& types = m_project ? m_project->types() : m_builtInTypes;
  const FileType* type = types.ofExtension(suffix);
  return type ? type->unitType : std::string();
}

}  // namespace veldra::host
