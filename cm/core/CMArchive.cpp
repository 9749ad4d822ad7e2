#include "cm/core/CMArchive.h"

#include "cm/core/DebugEcho.h"
#include "cm/core/TextTools.h"
#include "cm/host/Host.h"
#include "cm/host/IPN.h"
#include "cm/host/IProperty.h"
#include "cm/templates/CMProperty.h"

namespace veldra {

namespace {

/// The directory of a path that names a file; any other path as it is.
std::string archiveDirectory(const std::string& path) {
  Host* const host = installedHost();
  bool exists = false;
  const bool isDirectory = host != nullptr && host->environment().isDirectory(path, exists);
  if (!exists) {
    debugEcho({"Problem getting _tstat information about ", path, "\n"});
    return path;
  }
  return isDirectory ? path : std::string(cutAtLastSeparator(path));
}

}  // namespace

int CMArchive::isNamed(const std::string& keyword) const {
  return equalsNoCase(keyword, "archive") || equalsNoCase(keyword, "archivedirectory") ? 1 : 0;
}

std::string CMArchive::substitute(const std::string& keyword) {
  if (isNamed(keyword) == 0) return keyword;
  std::string path = m_path.empty() ? getMainArchive() : m_path;
  return equalsNoCase(keyword, "archive") ? path : archiveDirectory(path);
}

CMArchive::ArchiveSelection CMArchive::getArchiveSelection() {
  const IProperty* property = CurrentWorkspace::GetActiveProject() != nullptr
                                  ? CMProperty::getToolProperty(IPN::CMArchiveSelection)
                                  : nullptr;
  if (property == nullptr) return ArchiveUnset;
  const std::string value = property->getValue();
  if (equalsNoCase(value, "File")) return ArchiveFile;
  return equalsNoCase(value, "Directory") ? ArchiveDirectory : ArchiveUnset;
}

std::string CMArchive::getMainArchive() {
  std::string value;
  std::string expanded;
  if (CurrentWorkspace::GetActiveProject() == nullptr ||
      !CMProperty::getToolPropertyValue(IPN::CMArchive, value) || value.empty()) {
    return expanded;
  }
  CMProperty::ExpandPredefined(value, expanded);
  return expanded;
}

int CMArchive::setMainArchive(const std::string& path) {
  IProject* const project = CurrentWorkspace::GetActiveProject();
  if (project == nullptr || CurrentWorkspace::getCurrentProject() == nullptr) return 0;
  return CMProperty::setToolProperty(IPN::CMArchive, path, project);
}

}  // namespace veldra
