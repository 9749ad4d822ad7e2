// The choice between the provider back end and the command-line back end.

#include "cm/core/BackEnd.h"
#include "cm/core/ModuleState.h"
#include "cm/core/TextTools.h"
#include "cm/host/IModel.h"
#include "cm/host/IPN.h"
#include "cm/host/IProperty.h"
#include "cm/templates/CMProperty.h"

namespace veldra {

namespace {

bool isFor(const BackEndSelection& selection, const IProject* project) {
  return selection.project != nullptr && selection.project->doGetObject() == project;
}

void restartFor(BackEndSelection& selection, IProject* project) {
  selection = BackEndSelection();
  if (project == nullptr) return;
  selection.project = project->getHandle();
  selection.loadFromDM = project->isLoadFromDM();
}

}  // namespace

int CMProperty::useSccCompliantTool() {
  BackEndSelection& selection = moduleState().backEnd;
  IProject* const project = CurrentWorkspace::GetActiveProject();
  if (!isFor(selection, project)) restartFor(selection, project);

  const IProperty* const setting = getProjectProperty(IPN::General, "UseSCCtool");
  selection.usesProvider = setting != nullptr && equalsNoCase(setting->getValue(), "YES") ? 1 : 0;
  selection.computed = true;
  if (selection.usesProvider != 0 && !selection.providerLocated) {
    // Once per project: what goes wrong there has been told, and the selection stays.
    selection.providerLocated = true;
    backEnds().provider->locate();
  }
  return selection.usesProvider;
}

int CMProperty::getUseSCCtool() {
  const BackEndSelection& selection = moduleState().backEnd;
  if (!selection.computed || !isFor(selection, CurrentWorkspace::GetActiveProject())) {
    return useSccCompliantTool();
  }
  return selection.usesProvider;
}

std::string CMProperty::getSCCToolName() {
  return moduleState().sccToolName;
}

void CMProperty::setSCCToolName(const std::string& name) {
  moduleState().sccToolName = name;
}

bool CMProperty::getIsLoaded() {
  return moduleState().providerLoaded;
}

void CMProperty::setIsLoaded(bool isLoaded) {
  moduleState().providerLoaded = isLoaded;
}

}  // namespace veldra
