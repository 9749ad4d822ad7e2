#include "cm/ui/logic/archive/PartialLoad.h"

#include "cm/core/CMArchiveItem.h"
#include "cm/core/CMPartialLoadQuestionDlg.h"
#include "cm/core/TextTools.h"
#include "cm/host/IUserMessages.h"
#include "cm/host/MessageIds.h"
#include "cm/templates/CMProperty.h"
#include "cm/ui/logic/HostTexts.h"

namespace veldra {

namespace {

bool asksOnLoad() {
  std::string asks;
  CMProperty::getToolPropertyValue("AskOnLoadFromArchive", asks);
  return !equalsNoCase(asks, "NO");
}

}  // namespace

std::optional<CMArchiveItemList> ConfirmPartialLoad(const CMArchiveItemList& items,
                                                    bool fetchMode) {
  const bool asks = asksOnLoad();
  const std::string text =
      dialogText(fetchMode ? MessageId::LoadFetchedUnit : MessageId::LoadCheckedOutUnit);
  CMArchiveItemList loaded;
  for (CMArchiveItem* item : items) {
    if (item == nullptr) continue;
    int answer = MessageBox::AnswerYes;
    // What no unit can be made of is not asked about.
    if (asks && !item->getType().empty() && item->getLoadedUnit() == nullptr) {
      answer = CMPartialLoadQuestionDlg(text, item->getName()).DoModal();
    }
    if (answer == MessageBox::AnswerCancel) return std::nullopt;
    item->setStaysOutOfModel(answer != MessageBox::AnswerYes);
    if (answer == MessageBox::AnswerYes) loaded.addTail(item);
  }
  return loaded;
}

}  // namespace veldra
