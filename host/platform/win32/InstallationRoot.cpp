#include <windows.h>

#include <cstdlib>
#include <filesystem>

#include "host/platform/Environment.h"
#include "host/platform/win32/WideText.h"

namespace veldra::host {

std::string findInstallationRoot() {
  if (const char* root = std::getenv("VELDRA_ROOT"); root != nullptr && *root != '\0') return root;
  std::wstring program(32768, L'\0');
  program.resize(GetModuleFileNameW(nullptr, program.data(), static_cast<DWORD>(program.size())));
  if (program.empty()) return {};
  const std::filesystem::path folder = std::filesystem::path(program).parent_path();
  return fromWide((folder.parent_path() / "share" / "veldra-cm").native());
}

}  // namespace veldra::host
