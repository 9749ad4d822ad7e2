#pragma once

#include <QString>
#include <string>
#include <string_view>

#include "cm/ui/widgets/Text.h"

namespace veldra::host::desktop {

/// Bytes as a text that can be edited. Bytes that are no UTF-8 become replacement characters, so a
/// text that was not edited must not be written back.
inline QString shown(std::string_view bytes) {
  return QString::fromUtf8(bytes.data(), static_cast<qsizetype>(bytes.size()));
}

/// Bytes for the eye alone, on one line: no sign in a name passes for something else.
inline QString shownName(std::string_view bytes) {
  return veldra::shown(bytes);
}

inline std::string bytesOf(const QString& text) {
  return text.toStdString();
}

}  // namespace veldra::host::desktop
