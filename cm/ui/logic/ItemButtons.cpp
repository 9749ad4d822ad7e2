#include "cm/ui/logic/ItemButtons.h"

#include <array>
#include <cstddef>

#include "cm/host/IPN.h"
#include "cm/host/MessageIds.h"
#include "cm/templates/CMProperty.h"
#include "cm/ui/ControlIds.h"
#include "cm/ui/logic/HostTexts.h"

namespace veldra {

namespace {

struct Row {
  int controlId;
  DialogCommand picture;
  const char* shortcut;
};

constexpr std::array<Row, 7> Rows{{
    {ControlId::ArchiveCheckOut, DialogCommand::CheckOut, "Ctrl+O"},
    {ControlId::ArchiveFetch, DialogCommand::Fetch, "Ctrl+E"},
    {ControlId::ArchiveCompareModel, DialogCommand::Compare, "Ctrl+D"},
    {ControlId::ArchiveCompareVersions, DialogCommand::Compare, "Ctrl+Shift+D"},
    {ControlId::ArchiveBranch, DialogCommand::CheckOutBranch, "Ctrl+B"},
    {ControlId::SyncTakeOver, DialogCommand::Synchronize, "Ctrl+Y"},
    {ControlId::SyncRefresh, DialogCommand::RefreshStatus, "F5"},
}};

}  // namespace

bool ItemButtonRules::isShown(ItemButton button) {
  const bool usesProvider = CMProperty::getUseSCCtool() != 0;
  switch (button) {
    case ItemButton::FetchFromArchive:
      return usesProvider && CMProperty::getProjectBool(IPN::SCC, "EnableFetchFromArchive", true);
    case ItemButton::CompareModel:
      return !usesProvider;
    case ItemButton::CheckOutBranch:
      return ButtonRules::isShown(DialogCommand::CheckOutBranch);
    default:
      return true;
  }
}

std::string ItemButtonRules::caption(ItemButton button) {
  return dialogText(MessageId::ItemButtonCaption + static_cast<int>(button));
}

ButtonFace ItemButtonRules::face(ItemButton button) {
  const auto position = static_cast<std::size_t>(button);
  const Row& row = Rows.at(position);
  return {row.controlId,   row.picture,
          caption(button), dialogText(MessageId::ItemButtonTooltip + static_cast<int>(position)),
          row.shortcut,    isShown(button)};
}

}  // namespace veldra
