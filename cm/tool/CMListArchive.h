#pragma once

#include "cm/core/CMOperation.h"

namespace veldra {

/// Asks the tool what the archive holds and turns its answer into archive items, by the patterns
/// that the tool's properties hold. The items are appended to the list; the caller owns them.
class CMListArchive : public CMArchiveOperation {
 public:
  int operator()(CMArchiveItemList& items, ArgumentList& arguments,
                 DiagnosticList& diagnostics) override;
};

}  // namespace veldra
