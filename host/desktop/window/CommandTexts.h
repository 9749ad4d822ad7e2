#pragma once

#include <QString>

#include "host/desktop/commands/CommandTable.h"

namespace veldra::host::desktop {

/// The command's name in the user's language. Beside "Undo Last Change" and "New Unit" a menu needs
/// more words than a button of the dialog.
QString commandName(const WindowCommand& row);

}  // namespace veldra::host::desktop
