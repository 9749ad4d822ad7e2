#include "cm/ui/logic/BackEndMode.h"

#include <memory>

#include "cm/core/TextTools.h"
#include "cm/host/IModel.h"
#include "cm/host/IProperty.h"
#include "cm/host/IUserMessages.h"
#include "cm/host/MessageIds.h"
#include "cm/templates/CMProperty.h"

namespace veldra {

namespace {

constexpr char BranchTool[] = "VAULTRIX";

std::string toolName() {
  const IProperty* const tool = CMProperty::getCMTool(nullptr, false);
  return tool != nullptr ? tool->getValue() : std::string();
}

}  // namespace

BackEndMode BackEndMode::current() {
  BackEndMode mode;
  mode.usesProvider = CMProperty::getUseSCCtool() != 0;
  if (mode.usesProvider) return mode;
  const std::string tool = toolName();
  mode.isBranchTool = equalsNoCase(tool, BranchTool);
  mode.isNoTool = equalsNoCase(tool, "NONE");
  return mode;
}

bool showsProviderStatus() {
  return CMProperty::getShowCMStatus() != 0 && CMProperty::getUseSCCtool() != 0;
}

bool ConnectingToVaultrixWithControlledFiles(std::string& message) {
  if (!BackEndMode::current().isBranchTool) return false;
  const std::unique_ptr<IObIterator> files = IUnit::repositoryFiles();
  if (files == nullptr) return false;
  for (IUnit* unit = files->first(); unit != nullptr; unit = files->next()) {
    if (unit->asEmbededFile() == nullptr) continue;
    const IUnit* const owner = unit->getSaveUnit();
    const std::string fullName = unit->getFullFileName();
    message = formatMessage(MessageId::ControlledFilesForbidBranches,
                            {baseName(fullName), owner != nullptr ? owner->getName() : ""});
    return true;
  }
  return false;
}

}  // namespace veldra
