#pragma once

#include "cm/tool/UnitCommand.h"

namespace veldra {

/// Gives check-outs up without reloading the units; the arguments make the command recursive. An
/// empty list succeeds, whatever tool is selected.
class CMRecUnCheckout : public UnitCommand {
 public:
  int operator()(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics,
                 bool hybrid) override;

 protected:
  const OperationRow& row() const override;
};

}  // namespace veldra
