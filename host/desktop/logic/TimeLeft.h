#pragma once

#include <chrono>
#include <cstddef>
#include <optional>

namespace veldra::host::desktop {

/// Guesses from the units that are done how long the others will take.
class TimeLeft {
 public:
  using Seconds = std::chrono::duration<double>;

  /// Nothing as long as there is too little to go by: fewer than two units, or less than a second.
  /// `position` is the unit that is being worked on, 1 for the first.
  static std::optional<Seconds> guess(std::size_t position, std::size_t count, Seconds elapsed);
};

}  // namespace veldra::host::desktop
