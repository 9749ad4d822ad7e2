#pragma once

#include <QIcon>
#include <QString>

#include "host/desktop/logic/ModelOutline.h"

namespace veldra::host::desktop {

/// One of the program's icons by the name of its drawing, in the colours of the palette.
QIcon icon(const QString& name);

/// The icon of a line of the model tree: what it is, and in its corner how it stands.
QIcon unitIcon(const OutlineNode& node);

/// Drops what was drawn in the colours of another palette.
void forgetIcons();

}  // namespace veldra::host::desktop
