#include "host/desktop/window/CommandTexts.h"

#include <QCoreApplication>

namespace veldra::host::desktop {

QString commandName(const CommandRow& row) {
  return QCoreApplication::translate("Command", row.name);
}

QString commandHint(const CommandRow& row) {
  return QCoreApplication::translate("Command", row.hint);
}

}  // namespace veldra::host::desktop
