// The accessors for single settings.

#include "cm/core/CMArchive.h"
#include "cm/core/ModuleState.h"
#include "cm/host/IModel.h"
#include "cm/host/IPN.h"
#include "cm/host/IProperty.h"
#include "cm/templates/CMProperty.h"

namespace veldra {

namespace {
/// The value of a project property, empty when it is missing.
std::string projectValue(const char* metaclass, const char* name) {
  const IProperty* const property = CMProperty::getProjectProperty(metaclass, name);
  return property != nullptr ? property->getValue() : std::string();
}
}  // namespace

int CMProperty::isHybridModePossible() {
  return getProjectBool(IPN::General, "UseHybridModeWhenPossible", false) ? 1 : 0;
}

int CMProperty::saveOnCheckout(std::int16_t flag) {
  bool& isDue = moduleState().saveOnCheckoutDue;
  if (flag != -1) isDue = flag != 0;
  return isDue ? 1 : 0;
}

int CMProperty::closeProjectNeeded() {
  return projectValue(IPN::SCC, "ProjName").empty() ? 1 : 0;
}

int CMProperty::CheckCustomButton() {
  const bool complete = !projectValue("CustomButton", "CustomButtonCmd").empty() &&
                        !projectValue("CustomButton", "CustomButtonImg").empty();
  return complete ? 1 : 0;
}

int CMProperty::getShowCMStatus() {
  int& remembered = moduleState().showCMStatus;
  if (const IProject* const project = CurrentWorkspace::GetActiveProject()) {
    remembered = project->showCMStatus() ? 1 : 0;
  }
  return remembered;
}

bool CMProperty::isPre40Compatible() {
  std::string value;
  return getToolPropertyValue("SupportTreeRepository", value) && !value.empty();
}

std::string CMProperty::getWorkingDir() {
  const IProject* const project = CurrentWorkspace::GetActiveProject();
  if (project == nullptr) return {};
  return isPre40Compatible() ? project->getProjectDirectory() : project->getUnitDirectory();
}

int CMProperty::getBatchArchiveRecursive(const IUnit* unit, std::string& archive) {
  if (unit != nullptr && unit->getBatchArchiveRecursive(archive)) return 1;
  archive = CMArchive::getMainArchive();
  return archive.empty() ? 0 : 1;
}

int CMProperty::getSccArchiveRecursive(const IUnit* unit, std::string& projName,
                                       std::string& auxProjPath) {
  if (unit == nullptr || !unit->getSccArchiveRecursive(projName, auxProjPath)) {
    projName = projectValue(IPN::SCC, "ProjName");
    auxProjPath = projectValue(IPN::SCC, "AuxProjPath");
  }
  return projName.empty() ? 0 : 1;
}

}  // namespace veldra
