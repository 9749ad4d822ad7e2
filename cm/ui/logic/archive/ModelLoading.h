#pragma once

#include "cm/core/CMArchiveItemList.h"
#include "cm/host/Export.h"

namespace veldra {

/// Loads the files of items into the model, those that are loaded already anew; the host's reload
/// callbacks come before and after. Files that no unit can be made of are left alone. False when
/// one could not be loaded; the CM output names it.
VELDRA_CM_EXPORT bool addToModel(const CMArchiveItemList& items);

/// The items that the model has no unit of.
VELDRA_CM_EXPORT CMArchiveItemList notInModel(const CMArchiveItemList& items);

/// The items that the user has not kept out of the model (`ConfirmPartialLoad`).
VELDRA_CM_EXPORT CMArchiveItemList withoutDeclined(const CMArchiveItemList& items);

}  // namespace veldra
