#pragma once

#include "cm/tool/UnitCommand.h"

namespace veldra {

/// Checks units out for change and reloads what the tool brought.
class CMCheckOut : public UnitCommand {
 protected:
  const OperationRow& row() const override;
  std::unique_ptr<CCMFileCompare> snapshot(IUnit& unit) const override;
  void after(UnitRun& run) const override;
};

}  // namespace veldra
