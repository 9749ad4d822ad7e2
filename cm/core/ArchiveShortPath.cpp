#include "cm/core/ArchiveShortPath.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "cm/core/CMArchiveItem.h"
#include "cm/core/TextTools.h"
#include "cm/host/IModel.h"
#include "cm/templates/CMProperty.h"

namespace veldra {

namespace {

/// `directory` (ending in a separator) without the sub-directory text `tail` at its end, of which
/// the first character stays. Empty when it does not end so.
std::string_view withoutTail(std::string_view directory, std::string_view tail) {
  if (directory.size() < tail.size()) return {};
  const std::size_t start = directory.size() - tail.size();
  return equalsNoCase(directory.substr(start), tail) ? directory.substr(0, start + 1)
                                                     : std::string_view();
}

std::string shortPathByDirectory(std::string path, const std::string& directory) {
  if (directory.empty() || !startsWithNoCase(path, directory)) return path;
  return path.erase(0, directory.size() + 1);
}

}  // namespace

ArchiveShortPath::ArchiveShortPath() : m_hasNamesOnly(CMProperty::isPre40Compatible()) {
  if (m_hasNamesOnly) return;
  std::string repository;
  if (CMProperty::getUseSCCtool() == 0) {
    CMProperty::getToolPropertyValue("Repository", repository);
  }
  if (!repository.empty()) {
    readTemplate(std::move(repository));
    return;
  }
  m_directory = CMProperty::getWorkingDir();
  IProject* const project = CurrentWorkspace::GetActiveProject();
  if (m_directory.empty() && project != nullptr) m_directory = project->getDirectory();
}

void ArchiveShortPath::readTemplate(std::string repository) {
  static constexpr std::string_view SubDirs = "$SubDirs";
  const std::size_t subDirs = repository.find(SubDirs);
  const std::size_t fileName = repository.find("$FileName");
  if (repository.find("$ArchivePath") != std::string::npos || subDirs == std::string::npos ||
      fileName == std::string::npos) {
    return;
  }
  repository.erase(fileName);
  if (subDirs > 0) {
    m_headSize = subDirs;
    m_head = repository.substr(0, subDirs);
    repository.erase(0, subDirs + SubDirs.size());
  }
  if (repository != "/" && repository != "\\") m_tail = std::move(repository);
}

std::string ArchiveShortPath::of(const CMArchiveItem& item, bool withSuffix) const {
  if (m_hasNamesOnly) return withSuffix ? item.getFileName() : item.getName();
  std::string path = item.getFileNameWithPath();
  // The last dot, wherever that stands.
  if (!withSuffix) path.erase(std::min(path.rfind('.'), path.size()));
  path = shortPathByDirectory(std::move(path), m_directory);
  if (m_headSize > 0 && equalsNoCase(std::string_view(path).substr(0, m_headSize), m_head)) {
    path.erase(0, m_headSize);
  }
  if (m_tail.empty()) return path;
  const std::string_view name = baseName(path);
  const std::string_view directory = std::string_view(path).substr(0, path.size() - name.size());
  return std::string(withoutTail(directory, m_tail)) += name;
}

}  // namespace veldra
