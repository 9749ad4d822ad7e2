#pragma once

#include "cm/core/CMOperation.h"

namespace veldra {

/// Shows what the provider knows of each unit in its window. 1 when all could be shown.
class PropertiesSCC final : public CMOperation {
 public:
  virtual int operator()(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics);
};

}  // namespace veldra
