#pragma once

#include <string>

#include "cm/host/Export.h"
#include "cm/host/IProject.h"

namespace veldra {

/// The open project, or null.
VELDRA_CM_EXPORT IProject* activeProjectUnit();

/// The pictures that lie over a unit's icon, by their place in the host's list.
namespace OverlayImage {
inline constexpr int Saved = 3;
inline constexpr int Modified = 12;
}  // namespace OverlayImage

/// That of the project's line; 0, which is none, for a root without a file of its own.
VELDRA_CM_EXPORT int rootOverlay(IUnit& root);

/// Loads what the host loads on demand, before a window shows every unit.
VELDRA_CM_EXPORT void loadEverything(const std::string& reason);

}  // namespace veldra
