#pragma once

#include "cm/core/CMOperation.h"

namespace veldra {

/// Checks files of the archive out, those of packages with everything that lies below them in the
/// archive. 1 when all were checked out.
class RecCheckOutFromArchiveSCC : public CMArchiveOperation {
 public:
  int operator()(CMArchiveItemList& items, ArgumentList& arguments,
                 DiagnosticList& diagnostics) override;
};

/// The items themselves and, for those of loaded packages that have a directory of their own, an
/// item for every other file that the archive has below it.
void addItemsBelow(const CMArchiveItemList& items, CMArchiveItemListWrapper& all);

}  // namespace veldra
