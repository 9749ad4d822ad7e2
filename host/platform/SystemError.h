#pragma once

#include <string>
#include <system_error>

namespace veldra::host {

/// The system's words for one of its error numbers.
[[nodiscard]] inline std::string systemErrorText(int number) {
  return std::system_category().message(number);
}

}  // namespace veldra::host
