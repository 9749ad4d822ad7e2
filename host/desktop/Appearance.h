#pragma once

namespace veldra::host::desktop {

enum class Appearance {
  System,  ///< As the user's desktop has it.
  Light,
  Dark
};

/// What the user chose last.
Appearance savedAppearance();
void saveAppearance(Appearance appearance);

/// Gives all windows this appearance from now on.
void setAppearance(Appearance appearance);

}  // namespace veldra::host::desktop
