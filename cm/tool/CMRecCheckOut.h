#pragma once

#include "cm/tool/UnitCommand.h"

namespace veldra {

/// Checks units out without reloading them; the arguments make the command recursive.
class CMRecCheckOut : public UnitCommand {
 protected:
  const OperationRow& row() const override;
};

}  // namespace veldra
