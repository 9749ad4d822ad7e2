#pragma once

#include <string>

namespace veldra::host {

/// The system's words for one of its error numbers, without a full stop.
[[nodiscard]] std::string systemErrorText(int number);

}  // namespace veldra::host
