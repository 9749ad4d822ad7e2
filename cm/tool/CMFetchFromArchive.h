#pragma once

#include "cm/tool/ItemCommand.h"

namespace veldra {

/// Fetches items of the archive; the model is not touched.
class CMFetchFromArchive : public ItemCommand {
 protected:
  const OperationRow& row() const override;
};

}  // namespace veldra
