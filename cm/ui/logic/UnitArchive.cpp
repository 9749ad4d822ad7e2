#include "cm/ui/logic/UnitArchive.h"

#include "cm/core/CMArchive.h"
#include "cm/templates/CMProperty.h"
#include "cm/ui/logic/ProviderOptions.h"

namespace veldra {

std::string UnitArchive::offered(const IUnit& unit) {
  std::string archive;
  if (CMProperty::getUseSCCtool() != 0) {
    std::string auxPath;
    unit.getSccArchiveRecursive(archive, auxPath);
    return archive;
  }
  if (CMArchive::getArchiveSelection() == CMArchive::ArchiveUnset) return {};
  CMProperty::getBatchArchiveRecursive(&unit, archive);
  return archive;
}

bool UnitArchive::isFile() {
  return CMArchive::getArchiveSelection() == CMArchive::ArchiveFile;
}

bool UnitArchive::associate(IUnit& unit, const std::string& path, bool isNew) {
  if (CMProperty::useSccCompliantTool() != 0) {
    if (!isNew && !path.empty()) unit.setSccArchive(path, {});
    return associateUnit(&unit, isNew);
  }
  unit.setSccArchive(path, {});
  CMProperty::setIsConnected(!path.empty());
  return true;
}

void UnitArchive::disassociate(IUnit& unit) {
  disassociateUnit(&unit);
}

}  // namespace veldra
