#pragma once

#include <string>

#include "cm/core/CMArchiveItemList.h"
#include "cm/host/IUnit.h"

namespace veldra {

class CMArchiveItem;

/// The loaded unit of an item's file, or null.
IUnit* unitOfItem(const CMArchiveItem& item);

/// The loaded units of the items' files, each once; with those that lie in them when `recursive`.
UnitList unitsOfItems(const CMArchiveItemList& items, bool recursive);

/// The units whose files lie in a directory, at any depth.
UnitList unitsBelow(const std::string& directory);

/// The unit, and for a package that has a directory of its own every unit whose file lies in it.
/// The unit itself comes first.
UnitList withUnitsBelow(IUnit& unit);
/// The same for each unit of a list; every unit once, null ones left out.
UnitList withUnitsBelow(const UnitList& units);

}  // namespace veldra
