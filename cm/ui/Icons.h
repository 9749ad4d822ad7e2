#pragma once

#include <QIcon>

#include "cm/ui/Export.h"
#include "cm/ui/logic/CommandTable.h"

namespace veldra {

class CMArchiveItem;
class IUnit;

/// Our own drawings, in the ink of the application's palette and sharp at any size. The three
/// pictures of a button are the icon's Normal, Selected (pressed) and Active (focused) modes.
VELDRA_CM_UI_EXPORT QIcon commandIcon(DialogCommand command);

/// The CM state of that image index (0 to 6), told by shape and letter as well as by colour.
VELDRA_CM_UI_EXPORT QIcon stateIcon(int imageIndex);

/// A unit's kind; controlled files look as the system shows files of their type, if it does.
VELDRA_CM_UI_EXPORT QIcon unitIcon(const IUnit& unit);
/// The kind that a file of the archive would have, as its name tells.
VELDRA_CM_UI_EXPORT QIcon itemIcon(const CMArchiveItem& item);
/// The state and the kind side by side, as a line of the tree shows them; `overlay` lies over the
/// kind, 0 for none (see `OverlayImage`).
VELDRA_CM_UI_EXPORT QIcon unitIconWithState(const IUnit& unit, int overlay = 0);
/// Twice as wide as high.
VELDRA_CM_UI_EXPORT QSize unitIconWithStateSize(int height);

/// To be called when the palette has changed.
VELDRA_CM_UI_EXPORT void forgetIcons();

}  // namespace veldra
