#include "cm/ui/logic/ProgressText.h"

namespace veldra {

std::optional<std::int64_t> secondsLeft(std::size_t position, std::size_t count,
                                        std::int64_t elapsedMilliseconds) {
  if (position < 2 || position > count || elapsedMilliseconds <= 0) return std::nullopt;
  const auto done = static_cast<std::int64_t>(position - 1);
  const auto left = static_cast<std::int64_t>(count) - done;
  return (elapsedMilliseconds * left / done + 999) / 1000;
}

}  // namespace veldra
