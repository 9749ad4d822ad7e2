#include "cm/core/CMArchiveItem.h"

#include <utility>

#include "cm/core/TextTools.h"
#include "cm/host/IEnvironment.h"
#include "cm/host/IModel.h"
#include "cm/host/IProperty.h"
#include "cm/templates/CMProperty.h"

namespace veldra {

namespace {

/// The text before its last dot, wherever that stands.
std::string_view cutAtLastDot(std::string_view text) {
  return text.substr(0, text.rfind('.'));
}

/// `directory` (ending in a separator) without the sub-directory text `tail` at its end, of which
/// the first character stays. Empty when it does not end so.
std::string_view withoutTail(std::string_view directory, std::string_view tail) {
  if (directory.size() < tail.size()) return {};
  const std::size_t start = directory.size() - tail.size();
  return equalsNoCase(directory.substr(start), tail) ? directory.substr(0, start + 1)
                                                     : std::string_view();
}

/// Undoes the "Repository" template: takes off what stands before the sub-directories and the
/// directories that stand between them and the file name.
std::string shortPathByTemplate(std::string path, std::string repository) {
  static constexpr std::string_view SubDirs = "$SubDirs";
  const std::size_t subDirs = repository.find(SubDirs);
  const std::size_t fileName = repository.find("$FileName");
  if (repository.find("$ArchivePath") != std::string::npos || subDirs == std::string::npos ||
      fileName == std::string::npos) {
    return path;
  }
  repository.erase(fileName);
  if (subDirs > 0) {
    if (equalsNoCase(std::string_view(path).substr(0, subDirs),
                     std::string_view(repository).substr(0, subDirs))) {
      path.erase(0, subDirs);
    }
    repository.erase(0, subDirs + SubDirs.size());
  }
  if (repository.empty() || repository == "/" || repository == "\\") return path;

  const std::string name(baseName(path));
  const std::string_view directory = std::string_view(path).substr(0, path.size() - name.size());
  return std::string(withoutTail(directory, repository)) + name;
}

std::string shortPathByDirectory(const std::string& path) {
  std::string directory = CMProperty::getWorkingDir();
  IProject* const project = CurrentWorkspace::GetActiveProject();
  if (directory.empty() && project != nullptr) directory = project->getDirectory();
  if (directory.empty() || !startsWithNoCase(path, directory)) return path;
  return path.size() > directory.size() ? path.substr(directory.size() + 1) : std::string();
}

}  // namespace

CMArchiveItem::CMArchiveItem(std::string fileNameWithPath, std::string version, Mode mode,
                             std::string locker, std::string status)
    : m_fileNameWithPath(std::move(fileNameWithPath)),
      m_version(std::move(version)),
      m_mode(mode),
      m_locker(std::move(locker)),
      m_status(std::move(status)) {}

std::string CMArchiveItem::getFileName() const {
  return std::string(baseName(m_fileNameWithPath));
}

std::string CMArchiveItem::getName() const {
  return std::string(baseName(cutAtLastDot(m_fileNameWithPath)));
}

std::string CMArchiveItem::getSuffix() const {
  const std::size_t dot = m_fileNameWithPath.rfind('.');
  return dot == std::string::npos ? std::string() : m_fileNameWithPath.substr(dot);
}

std::string CMArchiveItem::getType() const {
  return IProject::fileExtension2UnitType(getSuffix());
}

std::string CMArchiveItem::getNameNShortPath(bool withSuffix) const {
  if (CMProperty::isPre40Compatible()) return withSuffix ? getFileName() : getName();
  std::string path =
      withSuffix ? m_fileNameWithPath : std::string(cutAtLastDot(m_fileNameWithPath));
  std::string repository;
  if (CMProperty::getUseSCCtool() == 0 &&
      CMProperty::getToolPropertyValue("Repository", repository) && !repository.empty()) {
    return shortPathByTemplate(std::move(path), std::move(repository));
  }
  return shortPathByDirectory(path);
}

std::string CMArchiveItem::getLocalPath() const {
  IProject* const project = CurrentWorkspace::GetActiveProject();
  if (project == nullptr) return {};
  if (equalsNoCase(getFileName(), project->getFileName())) return project->getDirectory();
  std::string directory = CMProperty::getWorkingDir();
  if (directory.empty()) directory = project->getDirectory();
  return std::string(cutAtLastSeparator(directory + omPathSeparator() + getNameNShortPath(false)));
}

std::string CMArchiveItem::getFileNameForRepFiles() const {
  if (!IUnit::isFullPathRepFiles()) return getFileName();
  IProject* const project = CurrentWorkspace::GetActiveProject();
  const std::string directory = project != nullptr ? project->getDirectory() : getLocalPath();
  if (directory.empty() || omIsAbsolutePath(m_fileNameWithPath)) return m_fileNameWithPath;
  return joinPath(directory, m_fileNameWithPath);
}

IUnit* CMArchiveItem::getLoadedUnit() const {
  return IUnit::getByFile(getFileNameForRepFiles());
}

std::string CMArchiveItem::getFullUnitFileName() const {
  const IUnit* const unit = IUnit::getByFile(m_fileNameWithPath);
  if (unit != nullptr && unit->isExternalUnitRecursive()) return m_fileNameWithPath;
  return getLocalPath() + omPathSeparator() + getFileName();
}

}  // namespace veldra
