#include "host/platform/RealPath.h"

#include <filesystem>
#include <system_error>

namespace veldra::host {

std::string realPath(const std::string& path) {
  std::error_code failed;
  const std::filesystem::path real = std::filesystem::canonical(path, failed);
  return failed ? std::string() : real.string();
}

}  // namespace veldra::host
