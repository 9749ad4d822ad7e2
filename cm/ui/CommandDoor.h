#pragma once

#include <QWidget>

#include "cm/ui/Export.h"
#include "cm/ui/logic/BatchResults.h"
#include "cm/ui/logic/CommandTable.h"

namespace veldra {

/// Runs a command of the main dialog on units that were selected elsewhere: its rule about how
/// many, its options above `parent`, its call and what it has to tell. `controlId` is the number of
/// the button. True when it was successful. The units may be other objects afterwards.
///
/// `results` is where the host's progress notes how units end; with it the user is told of every
/// unit that came to nothing, in one message.
VELDRA_CM_UI_EXPORT bool runCommandOn(int controlId, const UnitList& units, QWidget* parent,
                                      BatchResults* results = nullptr);

}  // namespace veldra
