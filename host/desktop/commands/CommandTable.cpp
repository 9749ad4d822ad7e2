#include "host/desktop/commands/CommandTable.h"

#include <algorithm>
#include <array>

#include "cm/host/IProperty.h"
#include "cm/templates/CMProperty.h"
#include "cm/ui/logic/ButtonRules.h"

namespace veldra::host::desktop {

std::span<const WindowCommand> windowCommands() {
  using Id = DialogCommand;
  // Their order is that of menu and tool bar. Add the next command here.
  static const std::array<WindowCommand, 10> Rows = {{
      {.command = Id::CheckOut,
       .shortcut = "Ctrl+Shift+O",
       .icon = "check-out",
       .losesChanges = true},
      {.command = Id::CheckIn, .shortcut = "Ctrl+Shift+I", .icon = "check-in", .savesFirst = true},
      {.command = Id::UndoCheckOut,
       .shortcut = "Ctrl+Shift+U",
       .icon = "undo-check-out",
       .losesChanges = true},
      {.command = Id::AddToArchive, .shortcut = "Ctrl+Shift+A", .icon = "add", .savesFirst = true},
      {.command = Id::Fetch, .shortcut = "Ctrl+Shift+F", .icon = "fetch", .losesChanges = true},
      {.command = Id::Lock, .shortcut = "Ctrl+Shift+L", .icon = "lock"},
      {.command = Id::Unlock, .shortcut = "Ctrl+Shift+K", .icon = "unlock", .losesChanges = true},
      {.command = Id::History,
       .shortcut = "Ctrl+Shift+H",
       .icon = "history",
       .changesArchive = false},
      {.command = Id::Properties,
       .shortcut = "Ctrl+Shift+P",
       .icon = "properties",
       .changesArchive = false,
       .isOnToolBar = false},
      {.command = Id::Compare,
       .shortcut = "Ctrl+Shift+D",
       .icon = "compare",
       .changesArchive = false,
       .isOnToolBar = false},
  }};
  return Rows;
}

const WindowCommand& windowCommand(DialogCommand command) {
  return *std::ranges::find(windowCommands(), command, &WindowCommand::command);
}

int controlIdOf(DialogCommand command) {
  return std::ranges::find(buttonTable(), command, &ButtonRow::command)->controlId;
}

bool isAvailable(const WindowCommand& row) {
  if (CMProperty::useSccCompliantTool() != 0) return ButtonRules::isShown(row.command);
  // A comparison fetches what it compares with.
  const bool fetches = row.command == DialogCommand::Compare;
  const std::string name =
      commandRow(fetches ? DialogCommand::Fetch : row.command)->templateProperty;
  const IProperty* const command = name.empty() ? nullptr : CMProperty::getToolProperty(name);
  return command != nullptr && !command->getValue().empty();
}

}  // namespace veldra::host::desktop
