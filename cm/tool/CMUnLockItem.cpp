#include "cm/tool/CMUnLockItem.h"

#include "cm/host/IPN.h"

namespace veldra {

const OperationRow& CMUnLockItem::row() const {
  static constexpr OperationRow row{
      .name = "Unlock",
      .templateProperty = IPN::CMUnLockItem,
      .traceBefore = "Executing the following command to unlock the file: ",
      .traceAfter = "Unlock command returned the following: ",
      .choosesArchive = true,
      // Some tools give the changes up with the lock.
      .keeps = KeepRule::EveryFile};
  return row;
}

void CMUnLockItem::after(UnitRun& run) const {
  updateHeaderAndMode(*run.unit);
}

}  // namespace veldra
