#include "cm/tool/CMCheckOutFromArchive.h"

#include "cm/core/CMOutputer.h"
#include "cm/core/TextTools.h"
#include "cm/host/Host.h"
#include "cm/host/IPN.h"
#include "cm/host/MessageIds.h"
#include "cm/tool/Reloading.h"

namespace veldra {

const OperationRow& CMCheckOutFromArchive::row() const {
  static constexpr OperationRow row{
      .name = "Check Out from Archive",
      .templateProperty = IPN::CMCheckOutFromArchive,
      .traceBefore = "Executing the following command to check out the file from the archive: ",
      .traceAfter = "Check out from the archive command returned the following: ",
      .save = SaveRule::IfSaveOnCheckOut,
      .tracksUnits = true,
      .asksOverwrite = true,
      .keeps = KeepRule::EveryFile,
      .handlerKind = CMVDYHandler::CheckOut};
  return row;
}

namespace {

bool isModelFile(const CMArchiveItem& item) {
  const std::string type = item.getType();
  return equalsNoCase(type, IProject::staticGetNewFileExtension()) ||
         equalsNoCase(type, IProject::staticGetOldFileExtension());
}

/// The name under which the item's file is loaded.
std::string fileToLoad(const ItemRun& run) {
  std::string name;
  if (isModelFile(run.item) && run.handler != nullptr) name = run.handler->fileNameToLoad();
  return name.empty() ? run.item.getFileNameForRepFiles() : name;
}

}  // namespace

void CMCheckOutFromArchive::after(ItemRun& run) const {
  if (run.item.getType().empty()) return;
  completeHandler(run);
  if (run.item.staysOutOfModel()) return;
  const std::string name = fileToLoad(run);
  VELDRA_TRACE("Performing ATM for the file ", name);
  if (loadItem(run.item, name) != nullptr) return;
  run.errorText =
      formatMessage(MessageId::FileNotLoaded,
                    {run.item.getLocalPath() + omPathSeparator() + run.item.getFileName()});
  CMOutputer::reportLoadingErrror(run.errorText);
  run.reloadFailed = true;
  run.status = 0;
}

}  // namespace veldra
