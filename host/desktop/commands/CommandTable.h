#pragma once

#include <span>

#include "cm/ui/logic/CommandTable.h"

namespace veldra::host::desktop {

/// What this window adds to a command of the dialogs: places in its menu and tool bar, keys that
/// are free here, and what its editor has to do first.
struct WindowCommand {
  DialogCommand command;
  const char* shortcut;
  const char* icon;
  bool savesFirst = false;     ///< What is unsaved must be in the file that the tool takes.
  bool changesArchive = true;  ///< Who holds what may be different afterwards.
  bool losesChanges = false;   ///< Asks before unsaved changes go.
  bool isOnToolBar = true;
};

std::span<const WindowCommand> windowCommands();
const WindowCommand& windowCommand(DialogCommand command);

/// The number under which the dialogs know the command.
int controlIdOf(DialogCommand command);

/// Whether the selected back end has the command.
bool isAvailable(const WindowCommand& row);

}  // namespace veldra::host::desktop
