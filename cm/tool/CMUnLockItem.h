#pragma once

#include "cm/tool/UnitCommand.h"

namespace veldra {

/// Gives up the lock of units. The model is not saved first.
class CMUnLockItem : public UnitCommand {
 protected:
  const OperationRow& row() const override;
  void after(UnitRun& run) const override;
};

}  // namespace veldra
