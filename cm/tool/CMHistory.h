#pragma once

#include "cm/tool/UnitCommand.h"

namespace veldra {

/// Shows the history of units in the CM output window.
class CMHistory : public UnitCommand {
 protected:
  const OperationRow& row() const override;
};

}  // namespace veldra
