#include "cm/ui/logic/MainArchive.h"

#include <string>

#include "cm/core/CMArchive.h"
#include "cm/host/IModel.h"
#include "cm/templates/CMProperty.h"

namespace veldra {

void chooseMainArchive(const UnitList& units) {
  if (CMArchive::getArchiveSelection() == CMArchive::ArchiveUnset) return;
  const IUnit* const unit = !units.empty() ? units.front() : CurrentWorkspace::GetActiveProject();
  std::string archive;
  if (unit != nullptr && CMProperty::getBatchArchiveRecursive(unit, archive) != 0) {
    CMArchive::setMainArchive(archive);
  }
}

}  // namespace veldra
