#include "host/desktop/window/CommandTexts.h"

#include <QCoreApplication>

namespace veldra::host::desktop {

QString commandName(const WindowCommand& row) {
  return QCoreApplication::translate("Command", row.name);
}

}  // namespace veldra::host::desktop
