#include "host/model/Workspace.h"

#include <utility>

#include "host/model/Project.h"

namespace veldra::host {
namespace {

UnitRecord workspaceRecord(Project& project) {
  UnitRecord record;
  record.folder = project.record().folder;
  record.unitType = "Workspace";
  record.name = project.record().name;
  return record;
}

}  // namespace

Workspace::Workspace(Project& project) : UnitOf(project, workspaceRecord(project)) {}

void Workspace::AddToSavedUnitsList(IUnit* unit) {
  if (!unit) return;
  std::string file = unit->getFullFileName();
  if (m_known.insert(file).second) m_saved.push_back(std::move(file));
}

}  // namespace veldra::host
