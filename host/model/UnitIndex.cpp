#include "host/model/UnitIndex.h"

#include <algorithm>

#include "host/model/PathNames.h"
#include "host/platform/RealPath.h"

namespace veldra::host {
namespace {

bool isAbsolute(std::string_view name) {
  return name.starts_with(HostSeparator) || name.starts_with('/') ||
         (name.size() > 2 && name[1] == ':');
}

}  // namespace

UnitCore* UnitIndex::findExact(std::string_view name) const {
  const auto found = m_units.find(std::string(name));
  return found == m_units.end() ? nullptr : found->second;
}

std::string_view UnitIndex::belowRoot(std::string_view absolute) const {
  if (!isInside(m_root, absolute)) return absolute;
  absolute.remove_prefix(std::min(m_root.size() + 1, absolute.size()));
  return absolute;
}

UnitCore* UnitIndex::find(std::string_view fileName) const {
  // The usual forms first; they need no copy.
  if (UnitCore* unit = findExact(belowRoot(fileName))) return unit;
  std::string name(fileName);
  std::replace(name.begin(), name.end(), '\\', HostSeparator);
  if (!isAbsolute(name)) {
    const std::optional<std::string> plain = plainRelative(name);
    return plain ? findExact(*plain) : nullptr;
  }
  if (UnitCore* unit = findExact(belowRoot(absolutePath(name)))) return unit;
  // The caller may have come through a link to the project's folder.
  const std::string real = realPath(name);
  return real.empty() ? nullptr : findExact(belowRoot(real));
}

}  // namespace veldra::host
