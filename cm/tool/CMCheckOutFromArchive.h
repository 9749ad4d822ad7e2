#pragma once

#include "cm/tool/ItemCommand.h"

namespace veldra {

/// Checks items of the archive out and loads or reloads their units.
class CMCheckOutFromArchive : public ItemCommand {
 protected:
  const OperationRow& row() const override;
  void after(ItemRun& run) const override;
};

}  // namespace veldra
