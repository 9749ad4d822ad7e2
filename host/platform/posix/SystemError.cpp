#include "host/platform/SystemError.h"

#include <system_error>

namespace veldra::host {

std::string systemErrorText(int number) {
  return std::system_category().message(number);
}

}  // namespace veldra::host
