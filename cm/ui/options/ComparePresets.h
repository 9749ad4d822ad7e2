#pragma once

#include "cm/ui/logic/OptionRules.h"

namespace veldra {

/// What the windows that prepare a comparison open with.
inline OptionPresets comparePresets() {
  OptionPresets presets;
  presets.command = DialogCommand::Compare;
  return presets;
}

}  // namespace veldra
