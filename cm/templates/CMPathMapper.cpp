#include "cm/templates/CMPathMapper.h"

#include "cm/core/TextTools.h"
#include "cm/host/IEnvironment.h"
#include "cm/templates/CMProperty.h"
#include "cm/templates/RepositoryText.h"

namespace veldra {

namespace {

bool mapsNothing(const std::string& repository) {
  return repository.empty() || repository.find("$ArchivePath") != std::string::npos;
}

/// What is left of `path` when as many characters as `part` has are taken from its front, without
/// blanks and separators around it. Callers have seen that the path contains the part.
std::string tailAfter(std::string_view path, const std::string& part) {
  return std::string(withoutOuterSeparators(trimmed(path.substr(part.size()))));
}

}  // namespace

std::string CMPathMapper::getArchiveSubDirFromLocalPath(const std::string& localPath) {
  const std::string_view path = trimmed(localPath);
  const std::string workingDir = CMProperty::getWorkingDir();
  if (workingDir.empty() || path.find(workingDir) == std::string_view::npos) return {};
  return tailAfter(path, workingDir);
}

std::string CMPathMapper::getArchivePathFromLocalPath(const std::string& localPath) {
  std::string subDir = getArchiveSubDirFromLocalPath(localPath);
  const std::string repository = repositoryText();
  if (mapsNothing(repository)) return localPath;
  if (!subDir.empty()) subDir.insert(subDir.begin(), omPathSeparator());
  return replaceAll(repository, "$SubDirs", subDir);
}

std::string CMPathMapper::getLocalPathFromArchivePath(const std::string& archivePath) {
  const std::string_view path = trimmed(archivePath);
  if (path.empty()) return {};
  const std::string repository = repositoryText();
  if (mapsNothing(repository)) return std::string(path);
  // A path without the repository text in it maps to that text itself.
  const std::string rest =
      path.find(repository) == std::string_view::npos ? repository : tailAfter(path, repository);
  return CMProperty::getWorkingDir() + omPathSeparator() + rest;
}

}  // namespace veldra
