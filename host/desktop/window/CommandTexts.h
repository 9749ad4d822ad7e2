#pragma once

#include <QString>

#include "host/desktop/commands/CommandTable.h"

namespace veldra::host::desktop {

/// The command's words in the user's language.
QString commandName(const WindowCommand& row);
QString commandHint(const WindowCommand& row);

}  // namespace veldra::host::desktop
