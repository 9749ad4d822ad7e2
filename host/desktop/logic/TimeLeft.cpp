#include "host/desktop/logic/TimeLeft.h"

namespace veldra::host::desktop {

std::optional<TimeLeft::Seconds> TimeLeft::guess(std::size_t position, std::size_t count,
                                                 Seconds elapsed) {
  constexpr std::size_t FewestDone = 2;
  constexpr Seconds ShortestTime{1};
  if (position <= FewestDone || position > count || elapsed < ShortestTime) return std::nullopt;
  const auto done = static_cast<double>(position - 1);
  const auto open = static_cast<double>(count - position + 1);
  return elapsed / done * open;
}

}  // namespace veldra::host::desktop
