#pragma once

#include <functional>
#include <string>

#include "cm/core/CMArchiveItem.h"
#include "cm/core/CMArchiveItemList.h"
#include "cm/core/CMTraitFacade.h"
#include "cm/host/IUnit.h"
#include "host/cli/UnitRecord.h"

namespace veldra::host::cli {

/// The unit as the workspace has it, with version and locker of its CM header.
UnitRecord describeUnit(IUnit& unit, const CMHeaderReader& headers);

/// The item as the archive listed it, its path relative to the project.
UnitRecord describeItem(const CMArchiveItem& item);
/// The same for those of a list, one after another. The settings are asked for once.
void describeItems(const CMArchiveItemList& items, const std::function<void(UnitRecord&)>& take);

/// The unit's file relative to the project, with "/"; the full name of a file outside of it.
std::string projectPath(IUnit& unit);

}  // namespace veldra::host::cli
