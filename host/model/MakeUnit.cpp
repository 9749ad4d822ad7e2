#include "host/model/UnitOf.h"

namespace veldra::host {

std::unique_ptr<UnitCore> makeUnit(Project& project, UnitRecord record) {
  if (record.controlledFile) return std::make_unique<ControlledFile>(project, std::move(record));
  const bool isPackage = record.directoryUnit || (record.type && record.type->package);
  if (isPackage) return std::make_unique<Package>(project, std::move(record));
  return std::make_unique<PlainUnit>(project, std::move(record));
}

}  // namespace veldra::host
