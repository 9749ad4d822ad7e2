#include "cm/core/HybridRule.h"

#include <algorithm>

#include "cm/core/TextTools.h"
#include "cm/host/IEnvironment.h"
#include "cm/templates/CMProperty.h"

namespace veldra {

bool isProviderNamed(const char* name) {
  return equalsNoCase(CMProperty::getSCCToolName(), name);
}

bool isPackageWithDirectory(IUnit* unit) {
  const ISubsystem* const package = unit != nullptr ? unit->asSubsystem() : nullptr;
  return package != nullptr && !package->getPackageDirectory().empty();
}

std::string placeOf(const IUnit& unit) {
  std::string file = unit.getFullFileName();
  if (!file.empty() || !isPackageWithDirectory(const_cast<IUnit*>(&unit))) return file;
  return joinPath(const_cast<IUnit&>(unit).asSubsystem()->getPackageDirectory(), {});
}

bool HybridRule::isPossible() {
  return CMProperty::isHybridModePossible() != 0 && isProviderNamed("Vaultrix");
}

bool HybridRule::appliesToPackages(const UnitList& units) {
  return isPossible() && std::any_of(units.begin(), units.end(), isPackageWithDirectory);
}

bool HybridRule::appliesToRename(const std::string& oldName, const std::string& newName) {
  const auto directoryOf = [](const std::string& path) {
    std::string directory;
    std::string fileName;
    std::string extension;
    ParseToDirFileNameAndExtension(path, directory, fileName, extension);
    return directory;
  };
  return isPossible() && directoryOf(oldName) != directoryOf(newName);
}

}  // namespace veldra
