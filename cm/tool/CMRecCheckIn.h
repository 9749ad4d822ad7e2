#pragma once

#include "cm/tool/UnitCommand.h"

namespace veldra {

/// Checks units in; the arguments make the command recursive.
class CMRecCheckIn : public UnitCommand {
 protected:
  const OperationRow& row() const override;
  void after(UnitRun& run) const override;
};

}  // namespace veldra
