#pragma once

#include "cm/core/CMOperation.h"

namespace veldra {

/// Checks units out with every unit of a file of its own that lies in them: the list grows by
/// these, and is then checked out as `CheckOutSCC` does it.
class RecCheckOutSCC : public CMWorkspaceOperation {
 public:
  int operator()(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics,
                 bool hybrid) override;
};

}  // namespace veldra
