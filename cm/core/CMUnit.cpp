#include "cm/core/CMUnit.h"

#include <array>

#include "cm/core/CMArchive.h"
#include "cm/core/CMArchiveItem.h"
#include "cm/core/HybridRule.h"
#include "cm/core/TextTools.h"
#include "cm/host/IEnvironment.h"
#include "cm/host/IModel.h"
#include "cm/templates/CMPathMapper.h"
#include "cm/templates/CMProperty.h"
#include "cm/templates/RepositoryText.h"

namespace veldra {

CMUnit::CMUnit(IUnit* unit) : m_unit(unit) {
  if (unit == nullptr) return;
  m_fileName = unit->getFileName();
  m_dirPath = cutAtLastSeparator(placeOf(*unit));
}

CMUnit::CMUnit(CMArchiveItem* item) : m_item(item) {
  if (item == nullptr) return;
  m_fileName = item->getName() + item->getSuffix();
  m_dirPath = item->getLocalPath();
}

namespace {
enum class Answer { None, Unit, UnitPath, UnitDirPath, UnitDirectory, ArchivePath, ArchiveDir };

Answer answerTo(std::string_view keyword) {
  struct Row {
    std::string_view keyword;
    Answer answer;
  };
  static constexpr std::array<Row, 6> rows{{{"Unit", Answer::Unit},
                                            {"UnitPath", Answer::UnitPath},
                                            {"UnitDirPath", Answer::UnitDirPath},
                                            {"UnitDirectory", Answer::UnitDirectory},
                                            {"UnitArchivePath", Answer::ArchivePath},
                                            {"UnitArchiveDir", Answer::ArchiveDir}}};
  for (const Row& row : rows) {
    if (equalsNoCase(keyword, row.keyword)) return row.answer;
  }
  return Answer::None;
}
}  // namespace

int CMUnit::isNamed(const std::string& keyword) const {
  return answerTo(keyword) != Answer::None ? 1 : 0;
}

std::string CMUnit::substitute(const std::string& keyword) {
  switch (answerTo(keyword)) {
    case Answer::Unit:
      return m_fileName;
    case Answer::UnitPath:
      return unitPath();
    case Answer::UnitDirPath:
      return unitDirPath();
    case Answer::UnitDirectory:
      return unitDirectory();
    case Answer::ArchivePath:
      return unitArchivePath();
    case Answer::ArchiveDir:
      return unitArchiveDir();
    case Answer::None:
      break;
  }
  return keyword;
}

std::string CMUnit::unitPath() const {
  return joinPath(m_dirPath, m_fileName);
}

std::string CMUnit::unitDirPath() const {
  return m_dirPath.empty() ? "." : m_dirPath;
}

std::string CMUnit::unitDirectory() const {
  IProject* const project = CurrentWorkspace::GetActiveProject();
  if (project == nullptr || m_dirPath.empty()) return {};
  std::string workingDir = CMProperty::getWorkingDir();
  if (workingDir.empty()) workingDir = project->getDirectory();
  // The character after the working directory is the separator; a path that is only one longer has
  // nothing below it.
  if (m_dirPath.size() <= workingDir.size() + 1 || !m_dirPath.starts_with(workingDir)) return {};
  return omPathSeparator() + m_dirPath.substr(workingDir.size() + 1);
}

std::string CMUnit::unitArchivePath() const {
  if (m_unit != nullptr) {
    return CMPathMapper::getArchivePathFromLocalPath(m_unit->getFullFileName());
  }
  return m_item != nullptr ? m_item->getFileNameWithPath() : std::string();
}

std::string CMUnit::unitArchiveDir() const {
  if (m_unit == nullptr && m_item == nullptr) return {};
  const std::string repository = repositoryText();
  if (repository.find("$ArchivePath") != std::string::npos) return repository;
  if (!repository.empty() && m_unit != nullptr) {
    return CMPathMapper::getArchivePathFromLocalPath(m_unit->getDirectory());
  }
  const std::string path = unitArchivePath();
  const std::size_t end = lastSeparator(path);
  // A file at the archive's root has no directory; its name is none.
  return end == std::string::npos ? std::string() : path.substr(0, end);
}

}  // namespace veldra
