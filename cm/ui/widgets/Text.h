#pragma once

#include <QString>
#include <string>
#include <string_view>

#include "cm/ui/Export.h"

namespace veldra {

/// Bytes for the eye. Control characters, line ends, and the marks that turn the direction of
/// writing, become visible signs, so that no name can make a line show something else than it is.
VELDRA_CM_UI_EXPORT QString shown(std::string_view bytes);

/// The same of a text with several lines: line ends and tabs stay.
VELDRA_CM_UI_EXPORT QString shownLines(const QString& text);

/// A tool tip that shows the text as it is, whatever signs of markup it contains.
VELDRA_CM_UI_EXPORT QString plainTip(const QString& text);

/// What the user typed, as bytes.
std::string bytesOf(const QString& text);

/// The host's text of that number.
QString hostText(int id);

}  // namespace veldra
