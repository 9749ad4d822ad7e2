#include "cm/ui/logic/SelectionRules.h"

#include <algorithm>

#include "cm/host/ATMRecursiveHelper.h"
#include "cm/host/IModel.h"
#include "cm/host/IUserMessages.h"
#include "cm/host/MessageIds.h"

namespace veldra {

bool allowsSelection(SelectionRule rule, std::size_t selected) {
  if (rule == SelectionRule::Any) return true;
  const bool onlyOne = rule != SelectionRule::AtLeastOne;
  if (selected == 1 || (selected > 1 && !onlyOne)) return true;
  const bool saysOne = selected > 1 || rule == SelectionRule::OneAndOnlyOne;
  notifyUserAndAsk(loadMessage(saysOne ? MessageId::SelectOnlyOne : MessageId::NothingSelected),
                   MessageBox::IconWarning);
  return false;
}

bool allowsCommands() {
  if (CurrentWorkspace::GetActiveProject() != nullptr) return true;
  notifyUserAndAsk(loadMessage(MessageId::NoProjectOpen), MessageBox::IconWarning);
  return false;
}

bool CheckForDescendentsInSelectedItems(const UnitList& units) {
  return std::any_of(units.begin(), units.end(), &ATMRecursiveHelper::hasSeveralFiles);
}

}  // namespace veldra
