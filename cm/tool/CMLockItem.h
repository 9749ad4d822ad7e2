#pragma once

#include "cm/tool/UnitCommand.h"

namespace veldra {

/// Locks units without changing them. The model is not saved first.
class CMLockItem : public UnitCommand {
 protected:
  const OperationRow& row() const override;
  void after(UnitRun& run) const override;
};

}  // namespace veldra
