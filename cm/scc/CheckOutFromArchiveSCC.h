#pragma once

#include "cm/core/CMOperation.h"

namespace veldra {

/// Checks files of the archive out and loads them: a unit that is loaded is reloaded, any other
/// file is added to the model. A writable file of a loaded unit is overwritten only with the
/// user's consent. 1 when all were checked out and loaded.
class CheckOutFromArchiveSCC : public CMArchiveOperation {
 public:
  int operator()(CMArchiveItemList& items, ArgumentList& arguments,
                 DiagnosticList& diagnostics) override;
};

}  // namespace veldra
