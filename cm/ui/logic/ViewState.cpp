#include "cm/ui/logic/ViewState.h"

#include "cm/core/ModuleState.h"
#include "cm/host/IPN.h"
#include "cm/host/IProperty.h"
#include "cm/templates/CMProperty.h"

namespace veldra {

void ViewState::initialize() {
  if (!viewMode().empty()) return;
  const IProperty* const view = CMProperty::getProjectProperty(IPN::General, "GUI");
  if (view != nullptr) setViewMode(view->getValue());
}

std::string ViewState::viewMode() {
  return moduleState().dialogs.viewMode;
}

void ViewState::setViewMode(const std::string& mode) {
  moduleState().dialogs.viewMode = mode;
}

bool ViewState::isFlat() {
  return moduleState().dialogs.viewMode == "Flat";
}

std::int32_t ViewState::sortColumn() {
  return moduleState().dialogs.sortColumn;
}

void ViewState::setSortColumn(std::int32_t column) {
  moduleState().dialogs.sortColumn = column;
}

std::int32_t ViewState::itemSortColumn(const std::string& list) {
  return moduleState().dialogs.itemSortColumns[list];
}

void ViewState::setItemSortColumn(const std::string& list, std::int32_t column) {
  moduleState().dialogs.itemSortColumns[list] = column;
}

std::string ViewState::unusedComment(DialogCommand command) {
  const auto& comments = moduleState().dialogs.unusedComments;
  const auto found = comments.find(static_cast<int>(command));
  return found != comments.end() ? found->second : std::string();
}

void ViewState::keepComment(DialogCommand command, const std::string& comment) {
  moduleState().dialogs.unusedComments[static_cast<int>(command)] = comment;
}

}  // namespace veldra
