#include "cm/tool/CMFetchFromArchive.h"

#include "cm/host/IPN.h"

namespace veldra {

const OperationRow& CMFetchFromArchive::row() const {
  static constexpr OperationRow row{
      .name = "Fetch from Archive",
      .templateProperty = IPN::CMFetchFromArchive,
      .traceBefore = "Executing the following command to fetch the file from the archive: ",
      .traceAfter = "Fetch from the archive command returned the following: ",
      .keeps = KeepRule::EveryFile};
  return row;
}

}  // namespace veldra
