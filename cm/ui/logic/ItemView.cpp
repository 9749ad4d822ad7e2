#include "cm/ui/logic/ItemView.h"

#include "cm/host/MessageIds.h"
#include "cm/ui/logic/HostTexts.h"

namespace veldra {

bool allowsItems(const CMArchiveItemList& items, bool onlyOne) {
  if (items.size() == 1 || (items.size() > 1 && !onlyOne)) return true;
  dialogWarning(dialogText(items.empty() ? MessageId::NoItemSelected : MessageId::SelectOneItem));
  return false;
}

}  // namespace veldra
