#include "cm/tool/CMUnCheckout.h"

#include "cm/host/Host.h"
#include "cm/host/IPN.h"
#include "cm/tool/ItemCommand.h"
#include "cm/tool/Reloading.h"

namespace veldra {

const OperationRow& CMUnCheckout::row() const {
  static constexpr OperationRow row{
      .name = "Undo Check Out",
      // Tools give a check-out up by unlocking; there is no template of its own.
      .templateProperty = IPN::CMUnLockItem,
      .traceBefore = "Executing the following command to uncheck out the file: ",
      .traceAfter = "Uncheck out command returned the following: ",
      .tracksUnits = true,
      .keeps = KeepRule::EveryFile};
  return row;
}

namespace {

/// The operation on archive items: only the command.
class UncheckoutItems : public ItemCommand {
 protected:
  const OperationRow& row() const override {
    static constexpr OperationRow row{
        .name = "Undo Check Out",
        .templateProperty = IPN::CMUnLockItem,
        .traceBefore = "Executing the following command to uncheck out the file from the archive: ",
        .traceAfter = "Uncheck out from the archive command returned the following: ",
        .keeps = KeepRule::EveryFile};
    return row;
  }
};

}  // namespace

int CMUnCheckout::operator()(CMArchiveItemList& items, ArgumentList& arguments,
                             DiagnosticList& diagnostics) {
  return UncheckoutItems()(items, arguments, diagnostics);
}

void CMUnCheckout::renameFileIfNeeded(IUnit* unit, const std::string& nameBefore,
                                      const std::string& nameNow) const {
  renameToComputedName(unit, nameBefore, nameNow);
}

void CMUnCheckout::after(UnitRun& run) const {
  if (run.unit->asEmbededFile() != nullptr) return;
  const std::string file = run.unit->getFullFileName();
  const std::string recordedName = run.unit->getRecordedFileName();
  const std::string fileName = run.unit->getFileName();
  VELDRA_TRACE("Performing ATM for the file ", file);
  bool canReload = false;
  IUnit* reloaded = reloadInPlace(*run.unit, canReload);
  if (canReload) {
    renameFileIfNeeded(reloaded, recordedName, fileName);
  } else {
    reloaded = addAgain(*run.unit);
  }
  if (!acceptReloaded(run, reloaded, file)) return;
  reloaded->updateCMHeader();
  reloaded->updateMode("");
}

}  // namespace veldra
