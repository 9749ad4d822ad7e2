#include "cm/scc/ArchiveUnits.h"

#include <algorithm>

#include "cm/core/CMArchiveItem.h"
#include "cm/core/CMFacade.h"
#include "cm/core/HybridRule.h"
#include "cm/core/WorkspaceUnits.h"
#include "cm/host/IEnvironment.h"

namespace veldra {

IUnit* unitOfItem(const CMArchiveItem& item) {
  return IUnit::getByFile(IUnit::isFullPathRepFiles() ? item.getFileNameWithPath()
                                                      : item.getFileName());
}

std::vector<std::string> filesOf(const UnitList& units) {
  std::vector<std::string> files;
  files.reserve(units.size());
  for (const IUnit* unit : units) files.push_back(unit->getFullFileName());
  return files;
}

UnitsByFile::UnitsByFile() : m_units(workspaceUnits()) {
  m_places.reserve(m_units.size());
  for (const IUnit* unit : m_units) m_places.emplace_back(unit->getFullFileName(), m_places.size());
  std::ranges::sort(m_places);
}

UnitList UnitsByFile::below(const std::string& directory) const {
  const std::string prefix = directory + omPathSeparator();
  std::vector<std::size_t> found;
  for (auto at = std::ranges::lower_bound(m_places, prefix, {}, &Place::first);
       at != m_places.end() && at->first.starts_with(prefix); ++at) {
    found.push_back(at->second);
  }
  std::ranges::sort(found);
  UnitList units;
  for (const std::size_t place : found) units.push_back(m_units[place]);
  return units;
}

UnitList UnitsByFile::with(IUnit& unit) const {
  UnitList units{&unit};
  if (!isPackageWithDirectory(&unit)) return units;
  const UnitList inside = below(unit.getDirectory());
  units.insert(units.end(), inside.begin(), inside.end());
  CMFacade::removeDuplicatesFromItemList(units);
  return units;
}

UnitList UnitsByFile::with(const UnitList& units) const {
  UnitList all;
  for (IUnit* unit : units) {
    if (unit == nullptr) continue;
    const UnitList found = with(*unit);
    all.insert(all.end(), found.begin(), found.end());
  }
  CMFacade::removeDuplicatesFromItemList(all);
  return all;
}

UnitList unitsOfItems(const CMArchiveItemList& items, bool recursive) {
  UnitList units;
  for (const CMArchiveItem* item : items) {
    IUnit* const unit = item != nullptr ? unitOfItem(*item) : nullptr;
    if (unit != nullptr) units.push_back(unit);
  }
  CMFacade::removeDuplicatesFromItemList(units);
  return recursive ? withNestedFiles(units) : units;
}

}  // namespace veldra
