#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace veldra {

/// Bytes for the eye. Control characters, and the marks that turn the direction of writing, become
/// visible signs, so that no name can make a line show something else than it is.
QString shown(std::string_view bytes);

/// What the user typed, as bytes.
std::string bytesOf(const QString& text);

/// The host's text of that number.
QString hostText(int id);

}  // namespace veldra
