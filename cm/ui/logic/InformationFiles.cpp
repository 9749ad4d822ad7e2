#include "cm/ui/logic/InformationFiles.h"

#include <algorithm>

#include "cm/core/CMArchiveItem.h"
#include "cm/core/CMFacade.h"
#include "cm/host/ATMRecursiveHelper.h"
#include "cm/host/IModel.h"
#include "cm/host/IPN.h"
#include "cm/templates/CMProperty.h"

namespace veldra {

namespace {

constexpr char RespectSetting[] = "EnableRespectSynchronizedCM";

/// The active configuration when it is in respect mode, else null.
ICodeGenConfigInfo* respectingConfiguration() {
  IProject* const project = CurrentWorkspace::GetActiveProject();
  ICodeGenConfigInfo* const configuration =
      project != nullptr ? project->getCodeGenConfigInfo() : nullptr;
  return configuration != nullptr && configuration->isRespectMode() ? configuration : nullptr;
}

bool isSavedSeparately(IUnit& unit) {
  return (unit.getFlags() & UnitFlag::SavedSeparately) != 0;
}

bool isObserved(IUnit* unit) {
  const ICodeGenConfigInfo* const configuration = respectingConfiguration();
  if (unit == nullptr || configuration == nullptr) return false;
  if (configuration->isObserved(unit)) return true;
  const std::vector<IDObject*> owned = unit->getAggregates();
  return std::any_of(owned.begin(), owned.end(), [configuration](IDObject* object) {
    IUnit* const part = object != nullptr ? object->asUnit() : nullptr;
    return part != nullptr && isSavedSeparately(*part) && configuration->isObserved(part);
  });
}

}  // namespace

bool InformationFiles::areOffered() {
  return CMProperty::getProjectBool(IPN::General, RespectSetting, true) &&
         respectingConfiguration() != nullptr;
}

bool InformationFiles::areThere(const UnitList& units) {
  return std::any_of(units.begin(), units.end(), &isObserved);
}

bool InformationFiles::shouldSetInformationFilesCheckBox(IUnit* unit) {
  return CMProperty::getProjectBool(IPN::General, RespectSetting, false) && isObserved(unit);
}

bool InformationFiles::shouldSetInformationFilesCheckBoxForUnitsList(
    const CMArchiveItemList& items) {
  return std::any_of(items.begin(), items.end(), [](const CMArchiveItem* item) {
    return item != nullptr &&
           shouldSetInformationFilesCheckBox(IUnit::getByFile(item->getFileNameForRepFiles()));
  });
}

bool InformationFiles::shouldSetInformationFilesCheckBoxForUnitsList2(const UnitList& units) {
  return std::any_of(units.begin(), units.end(), &shouldSetInformationFilesCheckBox);
}

void InformationFiles::append(UnitList& units) {
  const UnitList selected = units;
  for (IUnit* unit : selected) {
    const UnitList information = ATMRecursiveHelper::getListOFInformationUnits(unit);
    units.insert(units.end(), information.begin(), information.end());
  }
  CMFacade::removeDuplicatesFromItemList(units);
}

}  // namespace veldra
