#pragma once

#include <QStyle>
#include <memory>

namespace veldra::host::desktop {

/// Fusion for dark windows: it draws the outlines of fields and check boxes darker than the window,
/// and the arrow at the end of a tool bar black, whatever the palette says.
std::unique_ptr<QStyle> makeDarkStyle();

}  // namespace veldra::host::desktop
