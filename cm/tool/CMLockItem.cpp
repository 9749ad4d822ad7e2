#include "cm/tool/CMLockItem.h"

#include "cm/host/IPN.h"

namespace veldra {

const OperationRow& CMLockItem::row() const {
  static constexpr OperationRow row{
      .name = "Lock",
      .templateProperty = IPN::CMLockItem,
      .traceBefore = "Executing the following command to lock the file: ",
      .traceAfter = "Lock command returned the following: ",
      .choosesArchive = true};
  return row;
}

void CMLockItem::after(UnitRun& run) const {
  updateHeaderAndMode(*run.unit);
}

}  // namespace veldra
