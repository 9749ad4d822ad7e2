#pragma once

#include "cm/core/CMOperation.h"

namespace veldra {

/// Connects the workspace to the tool's repository and learns where the repository lies.
class CMConnectToCMRepository : public CMArchiveOperation {
 public:
  using CMArchiveOperation::operator();
  int operator()(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics);
};

}  // namespace veldra
