#pragma once

#include "cm/tool/ItemCommand.h"

namespace veldra {

/// Fetches items of the archive with what lies below them; the arguments make the command
/// recursive.
class CMRecFetchFromArchive : public ItemCommand {
 protected:
  const OperationRow& row() const override;
};

}  // namespace veldra
