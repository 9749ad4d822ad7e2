#include <time.h>

#include "host/platform/Clock.h"

namespace veldra::host {

std::tm localTimeNow() {
  const time_t now = time(nullptr);
  std::tm parts{};
  localtime_s(&parts, &now);
  return parts;
}

}  // namespace veldra::host
