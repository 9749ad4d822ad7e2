#pragma once

#include <optional>

#include "cm/core/CMArchiveItemList.h"
#include "cm/host/Export.h"

namespace veldra {

/// Decides which items are loaded into the model: those that are in it stay, and about each other
/// one the user is asked, unless the tool property "AskOnLoadFromArchive" is "NO". The others are
/// told to stay out of it (`CMArchiveItem::staysOutOfModel`). `fetchMode` chooses the text: items
/// are fetched, otherwise checked out. Nothing when the user gives the whole command up.
VELDRA_CM_EXPORT std::optional<CMArchiveItemList> ConfirmPartialLoad(const CMArchiveItemList& items,
                                                                     bool fetchMode);

}  // namespace veldra
