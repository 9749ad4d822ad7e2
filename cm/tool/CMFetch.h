#pragma once

#include "cm/tool/UnitCommand.h"

namespace veldra {

/// Fetches the archived revision of units.
class CMFetch : public UnitCommand {
 protected:
  const OperationRow& row() const override;
  void after(UnitRun& run) const override;
};

}  // namespace veldra
