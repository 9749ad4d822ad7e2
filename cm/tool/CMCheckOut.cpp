#include "cm/tool/CMCheckOut.h"

#include "cm/host/Host.h"
#include "cm/host/IPN.h"
#include "cm/tool/Reloading.h"

namespace veldra {

const OperationRow& CMCheckOut::row() const {
  static constexpr OperationRow row{
      .name = "Check Out",
      .templateProperty = IPN::CMCheckOut,
      .traceBefore = "Executing the following command to check out the file: ",
      // The wording of the check-in, on purpose: log readers search for it.
      .traceAfter = "Check in command returned the following: ",
      .save = SaveRule::IfSaveOnCheckOut,
      .tracksUnits = true,
      .asksOverwrite = true,
      .choosesArchive = true,
      .keeps = KeepRule::WritableFiles,
      .handlerKind = CMVDYHandler::CheckOut};
  return row;
}

std::unique_ptr<CCMFileCompare> CMCheckOut::snapshot(IUnit& unit) const {
  Host* const host = installedHost();
  if (host == nullptr || unit.asEmbededFile() != nullptr) return nullptr;
  std::unique_ptr<CCMFileCompare> compare = host->createFileCompare(unit.getFullFileName());
  if (compare != nullptr) compare->LoadFile1();
  return compare;
}

void CMCheckOut::after(UnitRun& run) const {
  const std::string file = run.unit->getFullFileName();
  int keepsObject = 0;
  if (run.compare != nullptr) {
    run.compare->LoadFile2();
    keepsObject = run.compare->Compare();
  }
  VELDRA_TRACE("Performing ATM for the file ", file);
  if (run.unit->asEmbededFile() != nullptr) return;

  IUnit* reloaded = nullptr;
  if (keepsObject != 0) {
    reloaded = run.compare->atm(run.unit);
  } else {
    bool canReload = false;
    reloaded = reloadInPlace(*run.unit, canReload);
    if (!canReload) reloaded = addAgain(*run.unit);
  }
  run.drop = !acceptReloaded(run, reloaded, file);
}

}  // namespace veldra
