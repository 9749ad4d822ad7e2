#include "cm/tool/CMRecFetchFromArchive.h"

#include "cm/host/IPN.h"

namespace veldra {

const OperationRow& CMRecFetchFromArchive::row() const {
  static constexpr OperationRow row{
      .name = "Recursive Fetch from Archive",
      .templateProperty = IPN::CMFetchFromArchive,
      .traceBefore =
          "Executing the following command to recursively fetch the file(s) from the archive: ",
      .traceAfter = "Recursive fetch from the archive command returned the following: ",
      .keeps = KeepRule::EveryFile};
  return row;
}

}  // namespace veldra
