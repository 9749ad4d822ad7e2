#include "cm/scc/RecCheckOutFromArchiveSCC.h"

#include <unordered_set>

#include "cm/core/CMArchiveItem.h"
#include "cm/core/HybridRule.h"
#include "cm/scc/ArchiveFiles.h"
#include "cm/scc/ArchiveUnits.h"
#include "cm/scc/CheckOutFromArchiveSCC.h"
#include "cm/scc/ProviderUnit.h"
#include "cm/scc/pvContextStruct.h"

namespace veldra {

void addItemsBelow(const CMArchiveItemList& items, CMArchiveItemListWrapper& all) {
  std::unordered_set<std::string> known;
  for (const CMArchiveItem* item : items) {
    if (item == nullptr || !known.insert(item->getFullUnitFileName()).second) continue;
    all.addTail(new CMArchiveItem(*item));
  }
  for (const CMArchiveItem* item : items) {
    IUnit* const unit = item != nullptr ? unitOfItem(*item) : nullptr;
    if (unit == nullptr || !isPackageWithDirectory(unit)) continue;
    const pvContextStruct* const context = contextFor(unit, nullptr);
    if (context == nullptr) return;
    for (const std::string& file : archiveFilesBelow(
             unit->getDirectory(), scc::SCC_COMMAND_CHECKOUT, context->getpvContextPtr())) {
      if (!known.insert(file).second) continue;
      all.addTail(new CMArchiveItem(file, "", CMArchiveItem::ReadOnly, "", ""));
    }
  }
}

int RecCheckOutFromArchiveSCC::operator()(CMArchiveItemList& items, ArgumentList& arguments,
                                          DiagnosticList& diagnostics) {
  CMArchiveItemListWrapper all;
  addItemsBelow(items, all);
  return CheckOutFromArchiveSCC()(all.list(), arguments, diagnostics);
}

}  // namespace veldra
