#include "cm/tool/CMHistory.h"

#include "cm/host/IPN.h"

namespace veldra {

const OperationRow& CMHistory::row() const {
  static constexpr OperationRow row{
      .name = "History",
      .templateProperty = "History",
      .traceBefore = "Executing the following command to show the history of the file: ",
      .traceAfter = "History command returned the following: "};
  return row;
}

}  // namespace veldra
