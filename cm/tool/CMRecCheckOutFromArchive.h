#pragma once

#include "cm/tool/ItemCommand.h"

namespace veldra {

/// Checks items of the archive out without loading them; the arguments make the command recursive.
class CMRecCheckOutFromArchive : public ItemCommand {
 protected:
  const OperationRow& row() const override;
  void after(ItemRun& run) const override;
};

}  // namespace veldra
