#include "cm/ui/logic/archive/ModelLoading.h"

#include <exception>

#include "cm/core/CMArchiveItem.h"
#include "cm/core/CMOutputer.h"
#include "cm/core/UnitBatch.h"
#include "cm/core/UnitReload.h"
#include "cm/host/Host.h"
#include "cm/host/MessageIds.h"

namespace veldra {

namespace {

bool loadFile(const CMArchiveItem& item) {
  if (item.getType().empty()) return true;
  const std::string name = item.getFileNameForRepFiles();
  VELDRA_TRACE("Performing ATM for the file ", name);
  if (loadItem(item, name) != nullptr) return true;
  CMOutputer::reportLoadingErrror(formatMessage(
      MessageId::FileNotLoaded, {item.getLocalPath() + omPathSeparator() + item.getFileName()}));
  return false;
}

}  // namespace

bool addToModel(const CMArchiveItemList& items) {
  const ReloadBracket bracket(!items.empty());
  bool allLoaded = true;
  try {
    for (const CMArchiveItem* item : items) {
      if (item != nullptr && !loadFile(*item)) allLoaded = false;
    }
  } catch (const std::exception& fault) {
    VELDRA_TRACE("Loading ended with a fault: ", fault.what());
    return false;
  }
  return allLoaded;
}

CMArchiveItemList notInModel(const CMArchiveItemList& items) {
  CMArchiveItemList missing;
  for (CMArchiveItem* item : items) {
    if (item != nullptr && item->getLoadedUnit() == nullptr) missing.addTail(item);
  }
  return missing;
}

CMArchiveItemList withoutDeclined(const CMArchiveItemList& items) {
  CMArchiveItemList wanted;
  for (CMArchiveItem* item : items) {
    if (item != nullptr && !item->staysOutOfModel()) wanted.addTail(item);
  }
  return wanted;
}

}  // namespace veldra
