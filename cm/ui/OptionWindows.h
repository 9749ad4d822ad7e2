#pragma once

#include <QWidget>
#include <optional>

#include "cm/ui/Export.h"
#include "cm/ui/logic/OptionRules.h"

namespace veldra {

/// Shows the option window that the presets ask for, modally. Nothing when the user gives up.
VELDRA_CM_UI_EXPORT std::optional<CommandOptions> showOptionWindow(const OptionPresets& presets,
                                                                   QWidget* parent);

}  // namespace veldra
