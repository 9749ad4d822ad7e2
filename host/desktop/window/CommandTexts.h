#pragma once

#include <QString>

#include "host/desktop/commands/CommandTable.h"

namespace veldra::host::desktop {

/// The command's words in the user's language.
QString commandName(const CommandRow& row);
QString commandHint(const CommandRow& row);

}  // namespace veldra::host::desktop
