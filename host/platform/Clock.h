#pragma once

#include <ctime>
#include <string>

namespace veldra::host {

/// The present local time. May be called from any thread.
[[nodiscard]] std::tm localTimeNow();

[[nodiscard]] std::string dateText(const std::tm& moment);  ///< "YYYY-MM-DD"
[[nodiscard]] std::string timeText(const std::tm& moment);  ///< "HH:MM:SS"

}  // namespace veldra::host
