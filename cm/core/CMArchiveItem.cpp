#include "cm/core/CMArchiveItem.h"

#include <utility>

#include "cm/core/ArchiveShortPath.h"
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
  return ArchiveShortPath().of(*this, withSuffix);
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
