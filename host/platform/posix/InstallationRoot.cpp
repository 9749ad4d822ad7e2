#include <cstdlib>
#include <filesystem>

#include "host/platform/Environment.h"

namespace veldra::host {

std::string findInstallationRoot() {
  if (const char* root = std::getenv("VELDRA_ROOT"); root != nullptr && *root != '\0') return root;
  std::error_code error;
  const auto program = std::filesystem::read_symlink("/proc/self/exe", error);
  if (error) return {};
  return (program.parent_path().parent_path() / "share" / "veldra-cm").string();
}

}  // namespace veldra::host
