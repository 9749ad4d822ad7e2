#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

#include "cm/host/Export.h"

namespace veldra {

/// The host's text of a message id, for the windows.
VELDRA_CM_EXPORT std::string dialogText(int id);
/// The same with its placeholders filled in order.
VELDRA_CM_EXPORT std::string dialogText(int id, std::initializer_list<std::string_view> values);
/// Shows a message through the host, with the icon that fits.
VELDRA_CM_EXPORT void dialogWarning(const std::string& text);
VELDRA_CM_EXPORT void dialogError(const std::string& text);

}  // namespace veldra
