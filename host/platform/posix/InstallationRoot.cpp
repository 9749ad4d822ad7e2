#include <cstdlib>
#include <filesystem>

#include "host/platform/Environment.h"
#include "host/platform/Program.h"

namespace veldra::host {

std::string findInstallationRoot() {
  if (const char* root = std::getenv("VELDRA_ROOT"); root != nullptr && *root != '\0') return root;
  const std::filesystem::path folder = programFolder();
  if (folder.empty()) return {};
  return (folder.parent_path() / "share" / "veldra-cm").string();
}

}  // namespace veldra::host
