#include "host/desktop/commands/CommandTable.h"

#include <algorithm>
#include <array>

#include "cm/core/CMFacade.h"
#include "cm/host/IPN.h"
#include "cm/host/IProperty.h"
#include "cm/templates/CMProperty.h"

namespace veldra::host::desktop {

std::span<const CommandRow> commandTable() {
  using Id = CommandId;
  // Their order is that of menu and tool bar. Add the next command here.
  static const std::array<CommandRow, 9> Rows = {{
      {.id = Id::CheckOut,
       .name = "Check Out",
       .hint = "Take the selected units from the archive to change them",
       .shortcut = "Ctrl+Shift+O",
       .icon = "check-out",
       .run = CMFacade::CheckOut,
       .templateProperty = IPN::CMCheckOut,
       .mode = CMMode::ReadWrite,
       .asksLabel = true,
       .losesChanges = true},
      {.id = Id::CheckIn,
       .name = "Check In",
       .hint = "Put your changes of the selected units into the archive",
       .shortcut = "Ctrl+Shift+I",
       .icon = "check-in",
       .run = CMFacade::CheckIn,
       .templateProperty = IPN::CMCheckIn,
       .asksComment = true,
       .asksLabel = true,
       .savesFirst = true},
      {.id = Id::UndoCheckOut,
       .name = "Undo Check Out",
       .hint = "Give the selected units back and drop your changes of them",
       .shortcut = "Ctrl+Shift+U",
       .icon = "undo-check-out",
       .run = CMFacade::Uncheckout,
       .templateProperty = IPN::CMUnLockItem,
       .losesChanges = true},
      {.id = Id::AddMember,
       .name = "Add to Archive",
       .hint = "Put the selected units under version control",
       .shortcut = "Ctrl+Shift+A",
       .icon = "add",
       .run = CMFacade::AddMember,
       .templateProperty = IPN::CMAddMember,
       .asksComment = true,
       .savesFirst = true},
      {.id = Id::Fetch,
       .name = "Fetch",
       .hint = "Get the newest revision of the selected units",
       .shortcut = "Ctrl+Shift+F",
       .icon = "fetch",
       .run = CMFacade::Fetch,
       .templateProperty = IPN::CMFetch,
       .asksLabel = true,
       .losesChanges = true},
      {.id = Id::Lock,
       .name = "Lock",
       .hint = "Keep the selected units to yourself",
       .shortcut = "Ctrl+Shift+L",
       .icon = "lock",
       .run = CMFacade::LockItem,
       .templateProperty = IPN::CMLockItem,
       .mode = CMMode::ReadWrite,
       .asksLabel = true},
      {.id = Id::Unlock,
       .name = "Unlock",
       .hint = "Let others change the selected units",
       .shortcut = "Ctrl+Shift+K",
       .icon = "unlock",
       .run = CMFacade::UnLockItem,
       .templateProperty = IPN::CMUnLockItem,
       .asksLabel = true,
       .losesChanges = true},
      {.id = Id::History,
       .name = "History",
       .hint = "Show in the CM output who changed the selected units, and why",
       .shortcut = "Ctrl+Shift+H",
       .icon = "history",
       .run = CMFacade::History,
       .templateProperty = "History",
       .changesArchive = false,
       .offersDescendants = false},
      {.id = Id::Properties,
       .name = "Properties",
       .hint = "Show what the archive knows of the selected unit",
       .shortcut = "Ctrl+Shift+P",
       .icon = "properties",
       .run = CMFacade::Properties,
       .templateProperty = nullptr,
       .changesArchive = false,
       .offersDescendants = false},
  }};
  return Rows;
}

const CommandRow& commandRow(CommandId id) {
  return *std::ranges::find(commandTable(), id, &CommandRow::id);
}

bool isAvailable(const CommandRow& row) {
  if (CMProperty::useSccCompliantTool() != 0) return true;
  if (row.templateProperty == nullptr) return false;
  const IProperty* command = CMProperty::getToolProperty(row.templateProperty);
  return command != nullptr && !command->getValue().empty();
}

}  // namespace veldra::host::desktop
