#pragma once

#include "cm/tool/UnitCommand.h"

namespace veldra {

/// Checks changed units in.
class CMCheckIn : public UnitCommand {
 protected:
  const OperationRow& row() const override;
  void after(UnitRun& run) const override;
};

}  // namespace veldra
