#include "host/desktop/commands/CommandTable.h"

#include <algorithm>
#include <array>

#include "cm/host/IPN.h"
#include "cm/host/IProperty.h"
#include "cm/templates/CMProperty.h"

namespace veldra::host::desktop {

std::span<const WindowCommand> windowCommands() {
  using Id = DialogCommand;
  // Their order is that of menu and tool bar. Add the next command here.
  static const std::array<WindowCommand, 9> Rows = {{
      {.command = Id::CheckOut,
       .name = "Check Out",
       .hint = "Take the selected units from the archive to change them",
       .shortcut = "Ctrl+Shift+O",
       .icon = "check-out",
       .templateProperty = IPN::CMCheckOut,
       .asksLabel = true,
       .losesChanges = true},
      {.command = Id::CheckIn,
       .name = "Check In",
       .hint = "Put your changes of the selected units into the archive",
       .shortcut = "Ctrl+Shift+I",
       .icon = "check-in",
       .templateProperty = IPN::CMCheckIn,
       .asksComment = true,
       .asksLabel = true,
       .savesFirst = true},
      {.command = Id::UndoCheckOut,
       .name = "Undo Check Out",
       .hint = "Give the selected units back and drop your changes of them",
       .shortcut = "Ctrl+Shift+U",
       .icon = "undo-check-out",
       .templateProperty = IPN::CMUnLockItem,
       .losesChanges = true},
      {.command = Id::AddToArchive,
       .name = "Add to Archive",
       .hint = "Put the selected units under version control",
       .shortcut = "Ctrl+Shift+A",
       .icon = "add",
       .templateProperty = IPN::CMAddMember,
       .asksComment = true,
       .savesFirst = true},
      {.command = Id::Fetch,
       .name = "Fetch",
       .hint = "Get the newest revision of the selected units",
       .shortcut = "Ctrl+Shift+F",
       .icon = "fetch",
       .templateProperty = IPN::CMFetch,
       .asksLabel = true,
       .losesChanges = true},
      {.command = Id::Lock,
       .name = "Lock",
       .hint = "Keep the selected units to yourself",
       .shortcut = "Ctrl+Shift+L",
       .icon = "lock",
       .templateProperty = IPN::CMLockItem,
       .asksLabel = true},
      {.command = Id::Unlock,
       .name = "Unlock",
       .hint = "Let others change the selected units",
       .shortcut = "Ctrl+Shift+K",
       .icon = "unlock",
       .templateProperty = IPN::CMUnLockItem,
       .asksLabel = true,
       .losesChanges = true},
      {.command = Id::History,
       .name = "History",
       .hint = "Show in the CM output who changed the selected units, and why",
       .shortcut = "Ctrl+Shift+H",
       .icon = "history",
       .templateProperty = "History",
       .changesArchive = false,
       .offersDescendants = false},
      {.command = Id::Properties,
       .name = "Properties",
       .hint = "Show what the archive knows of the selected unit",
       .shortcut = "Ctrl+Shift+P",
       .icon = "properties",
       .templateProperty = nullptr,
       .changesArchive = false,
       .offersDescendants = false},
  }};
  return Rows;
}

const WindowCommand& windowCommand(DialogCommand command) {
  return *std::ranges::find(windowCommands(), command, &WindowCommand::command);
}

bool isAvailable(const WindowCommand& row) {
  if (CMProperty::useSccCompliantTool() != 0) return true;
  if (row.templateProperty == nullptr) return false;
  const IProperty* command = CMProperty::getToolProperty(row.templateProperty);
  return command != nullptr && !command->getValue().empty();
}

}  // namespace veldra::host::desktop
