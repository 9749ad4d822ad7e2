#pragma once

#include "cm/core/CMOperation.h"

namespace veldra {

/// Lists what the archive holds of the project: an item per file, with the version and locker that
/// the loaded unit's header or the provider knows, and the status in words. The items belong to
/// the list's owner. 1 when the archive could be listed.
class ListArchiveSCC : public CMArchiveOperation {
 public:
  int operator()(CMArchiveItemList& items, ArgumentList& arguments,
                 DiagnosticList& diagnostics) override;
};

}  // namespace veldra
