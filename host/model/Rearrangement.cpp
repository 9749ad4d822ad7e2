#include "host/model/Rearrangement.h"

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <utility>

#include "host/model/FolderScan.h"
#include "host/model/PathNames.h"
#include "host/platform/RemoveTree.h"

namespace veldra::host {
namespace fs = std::filesystem;

namespace {

using Planned = Result<Rearrangement>;

std::string relativeTo(const Project& project, const std::string& path) {
  const std::string& root = project.record().folder->path;
  return path.substr(std::min(root.size() + 1, path.size()));
}

bool exists(const std::string& path) {
  std::error_code failed;
  return fs::symlink_status(path, failed).type() != fs::file_type::not_found;
}

/// Whether the owner's file lists the controlled file.
bool isListedByOwner(const UnitCore& unit) {
  UnitCore* const owner = unit.owner();
  if (!unit.record().controlledFile || !owner || owner == &unit.project()) return false;
  Problem problem;
  const ModelText* const text = owner->text(problem);
  if (!text) return false;
  Problems ignored;
  for (const std::string& name : textList(text->body, "controlled", ignored)) {
    const auto plain = plainRelative(joinPath(owner->record().folder->relative, name));
    if (plain == unit.relativeFileName()) return true;
  }
  return false;
}

/// The file name that another name gives to a unit whose content does not hold it.
std::string fileNameOf(const UnitRecord& record, const std::string& name) {
  const std::string extension = extensionOf(record.fileName);
  const bool isWhole = record.type ? extensionOf(name) == extension : !extensionOf(name).empty();
  return isWhole ? name : name + record.fileName.substr(stemOf(record.fileName).size());
}

bool isPlainName(const std::string& name) {
  return !name.empty() && name != "." && name != ".." &&
         name.find_first_of(std::string_view("/\\\0", 3)) == std::string::npos;
}

}  // namespace

Rearrangement::Rearrangement(UnitCore& unit)
    : m_unit(&unit),
      m_oldFile(joinPath(unit.record().folder->path, unit.record().fileName)),
      m_oldName(unit.record().name) {}

std::optional<std::string> Rearrangement::obstacle() const {
  const UnitRecord& record = m_unit->record();
  Project& project = m_unit->project();
  if (m_unit == &project) return "The project itself cannot be deleted, moved or renamed.";
  if (m_unit->isExternal()) return "It belongs to another project. Open that project.";
  if (record.stub) return "The unit is not loaded. Load it first.";
  if (!m_unit->hasFile() && m_unit->children().empty()) {
    return "No unit of the project lies in that folder.";
  }
  const std::string relative = m_wholeFolder ? record.folder->relative : m_unit->relativeFileName();
  if (project.mode() == FileMode::ReadOnly && project.lists(relative)) {
    return "The project file names it in a list. Check the project file out first.";
  }
  if (isListedByOwner(*m_unit)) {
    return "The file of \"" + m_unit->owner()->qualifiedName() +
           "\" lists it. Take it from that list first.";
  }
  return std::nullopt;
}

std::optional<std::string> Rearrangement::obstacleAt(const std::string& folder,
                                                     const std::string& fileName) {
  const UnitRecord& record = m_unit->record();
  m_newFile = joinPath(folder, fileName);
  const std::string place = relativeTo(m_unit->project(), m_newFile);
  if (m_newFile == m_oldFile) return "It has that name and place already.";
  if (exists(m_wholeFolder ? folder : m_newFile)) {
    return (m_wholeFolder ? folder : m_newFile) + " exists already. Choose another name or place.";
  }
  if (m_unit->project().types().ofFile(fileName) != record.type ||
      (m_wholeFolder && isRecordFolder(baseName(folder))) ||
      fileName.starts_with(WorkingFilePrefix) || fileName.ends_with(",v")) {
    return "\"" + place + "\" would be no file of the model any more. Choose another name.";
  }
  if (record.type && FileTypes::isDirectoryUnit(*record.type, fileName, baseName(folder)) !=
                         record.directoryUnit) {
    return "\"" + place + "\" would be another kind of package. Choose another name or place.";
  }
  if (std::ranges::count(place, HostSeparator) > MaximumFolderDepth) {
    return "\"" + place + "\" is nested too deep. Choose a place further up.";
  }
  return std::nullopt;
}

Planned Rearrangement::planDelete(UnitCore& unit, bool wholeFolder) {
  Rearrangement plan(unit);
  plan.m_wholeFolder = wholeFolder && unit.record().directoryUnit;
  if (const auto reason = plan.obstacle()) return Planned::failure(*reason);
  return plan;
}

Planned Rearrangement::planMove(UnitCore& unit, UnitCore& target) {
  Rearrangement plan(unit);
  const UnitRecord& record = unit.record();
  plan.m_wholeFolder = record.directoryUnit;
  if (&target != &unit.project() && !target.record().directoryUnit) {
    return Planned::failure("\"" + target.qualifiedName() +
                            "\" is no package with a folder of its own. Name one that is.");
  }
  if (const auto reason = plan.obstacle()) return Planned::failure(*reason);
  std::string folder = target.record().folder->path;
  if (plan.m_wholeFolder && isInside(record.folder->path, folder)) {
    return Planned::failure("A package cannot be moved into itself. Name another package.");
  }
  if (plan.m_wholeFolder) folder = joinPath(folder, baseName(record.folder->path));
  if (const auto reason = plan.obstacleAt(folder, record.fileName)) {
    return Planned::failure(*reason);
  }
  return plan;
}

Planned Rearrangement::planRename(UnitCore& unit, const std::string& name) {
  Rearrangement plan(unit);
  const UnitRecord& record = unit.record();
  plan.m_wholeFolder = record.directoryUnit;
  if (const auto reason = plan.obstacle()) return Planned::failure(*reason);
  const bool isOwn = unit.isOwnFile() && !record.controlledFile;
  if (isOwn && record.mode == FileMode::ReadOnly) {
    return Planned::failure(
        "The name is part of the file, which is read-only. Check it out first.");
  }
  std::string fileName = isOwn ? unit.computedFileName(name) : fileNameOf(record, name);
  if (!unit.hasFile()) fileName = name;
  // The name of an own file is written with other signs where a file's name cannot hold them.
  if (name.empty() || !isPlainName(fileName) || !(isOwn || isPlainName(name))) {
    return Planned::failure("\"" + name + "\" cannot be a file's name. Choose another one.");
  }
  std::string folder = record.folder->path;
  if (!unit.hasFile()) {
    folder = joinPath(parentPath(folder), std::exchange(fileName, {}));
  } else if (plan.m_wholeFolder) {
    folder = joinPath(parentPath(folder), stemOf(fileName));
    if (record.type->directoryUnit != "*") fileName = record.fileName;
  }
  if (isOwn) plan.m_newName = name;
  if (const auto reason = plan.obstacleAt(folder, fileName)) return Planned::failure(*reason);
  return plan;
}

bool Rearrangement::takesAlong(const std::string& file) const {
  return m_wholeFolder && isInside(parentPath(m_oldFile), file);
}

std::optional<std::string> Rearrangement::prepare() {
  std::string error;
  m_kept =
      std::make_unique<KeptFiles>(m_wholeFolder ? m_unit->record().folder->path : m_oldFile, error);
  if (!error.empty()) return error;
  if (m_newName.empty()) return std::nullopt;
  Problem problem;
  if (m_unit->rename(m_newName, problem) && m_unit->save(problem)) return std::nullopt;
  (void)takeBack();
  return sentence(problem);
}

void Rearrangement::moveOnDisk() const {
  m_kept->moveOriginals(m_wholeFolder ? std::string(parentPath(m_newFile)) : m_newFile);
  const std::string moved = joinPath(parentPath(m_newFile), baseName(m_oldFile));
  std::error_code failed;
  if (m_unit->hasFile() && m_wholeFolder && !exists(m_newFile))
    fs::rename(moved, m_newFile, failed);
}

void Rearrangement::removeFromModel() {
  Project& project = m_unit->project();
  if (!m_wholeFolder) return project.remove(*m_unit);
  const std::string folder = m_unit->record().folder->relative;
  std::vector<UnitCore*> inside;
  for (UnitCore* unit : project.files()) {
    const bool isHere = unit != &project && !unit->record().referenced;
    if (isHere && isInside(folder, unit->record().folder->relative)) inside.push_back(unit);
  }
  for (auto unit = inside.rbegin(); unit != inside.rend(); ++unit) project.remove(**unit);
  if (!m_unit->hasFile()) project.remove(*m_unit);
}

void Rearrangement::carryOut(const Farewell& mayGo) {
  Project& project = m_unit->project();
  if (m_newFile.empty()) {
    m_kept->removeOriginals(mayGo);
    removeFromModel();
    return;
  }
  moveOnDisk();
  if (m_wholeFolder) {
    project.moveFolder(m_unit->record().folder->relative,
                       relativeTo(project, std::string(parentPath(m_newFile))));
  }
  if (m_unit->hasFile() && m_unit->fullFileName() != m_newFile) {
    project.moveFile(*m_unit, relativeTo(project, m_newFile));
  }
}

std::optional<std::string> Rearrangement::takeBack() {
  std::string other;
  if (!m_newFile.empty()) {
    other = m_wholeFolder ? std::string(parentPath(m_newFile)) : m_newFile;
    std::error_code failed;
    if (m_unit->hasFile()) removeEntry(m_newFile, failed);
  }
  std::optional<std::string> failure = m_kept->restore(other);
  if (!m_newName.empty()) m_unit->forgetContent(m_oldName);
  m_unit->updateMode({});
  return failure;
}

}  // namespace veldra::host
