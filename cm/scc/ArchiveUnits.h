#pragma once

#include <string>
#include <utility>
#include <vector>

#include "cm/core/CMArchiveItemList.h"
#include "cm/host/IUnit.h"

namespace veldra {

class CMArchiveItem;

/// The loaded unit of an item's file, or null.
IUnit* unitOfItem(const CMArchiveItem& item);

/// The loaded units of the items' files, each once; with those that lie in them when `recursive`.
UnitList unitsOfItems(const CMArchiveItemList& items, bool recursive);

/// The full names of the units' files.
std::vector<std::string> filesOf(const UnitList& units);

/// The units of the workspace by where their files lie, looked at once for any number of packages.
class UnitsByFile {
 public:
  UnitsByFile();

  /// The units whose files lie in a directory, at any depth, in the order of the workspace.
  UnitList below(const std::string& directory) const;
  /// The unit, and for a package that has a directory of its own every unit whose file lies in it.
  /// The unit itself comes first.
  UnitList with(IUnit& unit) const;
  /// The same for each unit of a list; every unit once, null ones left out.
  UnitList with(const UnitList& units) const;

 private:
  using Place = std::pair<std::string, std::size_t>;  ///< The file, and where its unit stands.

  UnitList m_units;
  std::vector<Place> m_places;  ///< Sorted, so that what lies in one directory stands together.
};

}  // namespace veldra
