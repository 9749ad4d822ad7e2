#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace veldra::host::desktop {

/// Bytes for the eye. Bytes that are no UTF-8 become replacement characters, so a text that was not
/// edited must not be written back.
inline QString shown(std::string_view bytes) {
  return QString::fromUtf8(bytes.data(), static_cast<qsizetype>(bytes.size()));
}

inline std::string bytesOf(const QString& text) {
  return text.toStdString();
}

}  // namespace veldra::host::desktop
