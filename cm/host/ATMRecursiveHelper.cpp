#include "cm/host/ATMRecursiveHelper.h"

#include <cstddef>
#include <unordered_set>
#include <vector>

#include "cm/host/Host.h"

namespace veldra {

namespace {

bool hasOwnFile(IUnit& unit) {
  return (unit.getFlags() & UnitFlag::SavedSeparately) != 0 || unit.asEmbededFile() != nullptr;
}

/// Walks without recursion: models are as deep as their users like.
UnitList filesIn(IUnit* unit, bool nested, std::size_t limit) {
  UnitList files;
  std::unordered_set<const IDObject*> seen;
  std::vector<IDObject*> open;
  if (unit != nullptr) open.push_back(unit);
  while (!open.empty() && files.size() < limit) {
    IDObject* const object = open.back();
    open.pop_back();
    if (object == nullptr || !seen.insert(object).second) continue;
    IUnit* const found = object->asUnit();
    const bool isFile = found != nullptr && hasOwnFile(*found);
    if (isFile) files.push_back(found);
    if (isFile && !nested && found != unit) continue;
    const std::vector<IDObject*> owned = object->getAggregates();
    open.insert(open.end(), owned.rbegin(), owned.rend());
  }
  return files;
}

}  // namespace

UnitList ATMRecursiveHelper::getListOFFilesIn(IUnit* unit, bool nested) {
  return filesIn(unit, nested, static_cast<std::size_t>(-1));
}

bool ATMRecursiveHelper::hasSeveralFiles(IUnit* unit) {
  return filesIn(unit, true, 2).size() > 1;
}

UnitList ATMRecursiveHelper::getListOFInformationUnits(IUnit* unit) {
  Host* const host = installedHost();
  return host != nullptr ? host->model().informationUnitsOf(unit) : UnitList();
}

}  // namespace veldra
