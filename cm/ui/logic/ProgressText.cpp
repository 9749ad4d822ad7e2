#include "cm/ui/logic/ProgressText.h"

namespace veldra {

std::optional<std::int64_t> secondsLeft(std::size_t position, std::size_t count,
                                        std::int64_t elapsedMilliseconds) {
  constexpr std::int64_t ShortestTime = 1000;
  const bool hasPace = position >= 2 && elapsedMilliseconds >= ShortestTime;
  if (!hasPace || position > count) return std::nullopt;
  const auto done = static_cast<std::int64_t>(position - 1);
  const auto left = static_cast<std::int64_t>(count) - done;
  return (elapsedMilliseconds * left / done + 999) / 1000;
}

}  // namespace veldra
