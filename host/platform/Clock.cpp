#include "host/platform/Clock.h"

#include <array>

namespace veldra::host {

std::string dateText(const std::tm& moment) {
  std::array<char, 64> text{};
  return std::string(text.data(), std::strftime(text.data(), text.size(), "%Y-%m-%d", &moment));
}

std::string timeText(const std::tm& moment) {
  std::array<char, 64> text{};
  return std::string(text.data(), std::strftime(text.data(), text.size(), "%H:%M:%S", &moment));
}

}  // namespace veldra::host
