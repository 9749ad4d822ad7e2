#include "host/platform/RealPath.h"

#include <filesystem>
#include <system_error>

#include "host/platform/win32/OpenFile.h"
#include "host/platform/win32/WideText.h"

namespace veldra::host {

namespace {

bool isSameInAnyCase(const std::string& a, const std::string& b) {
  const std::optional<std::wstring> first = toWide(a);
  const std::optional<std::wstring> second = toWide(b);
  return first && second &&
         CompareStringOrdinal(first->c_str(), -1, second->c_str(), -1, TRUE) == CSTR_EQUAL;
}

}  // namespace

std::string realPath(const std::string& path) {
  std::error_code failed;
  const std::string real = std::filesystem::canonical(path, failed).string();
  if (failed) return {};
  // The system names a connected drive by its server, where other programs may find no way.
  const std::string asOnDisk = fromNativePath(finalName(nativePath(real)));
  return isSameInAnyCase(asOnDisk, real) ? asOnDisk : real;
}

}  // namespace veldra::host
