#include "host/model/Reloading.h"

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <utility>

#include "host/model/CMHeader.h"
#include "host/model/FolderScan.h"
#include "host/model/PathNames.h"
#include "host/model/UnitLoader.h"
#include "host/platform/AtomicFile.h"

namespace veldra::host {
namespace fs = std::filesystem;

namespace {

/// Looks at a file before it becomes a unit. Nothing, and reported, when it cannot be one.
std::optional<UnitHead> usableHead(Project& project, const std::string& path,
                                   const FileType* type) {
  UnitHead head = readUnitHead(path, type);
  if (!head.problem) return head;
  project.addProblem(*head.problem);
  return std::nullopt;
}

UnitCore* reloadProject(Project& project) {
  Problem problem;
  if (project.reloadFile(problem)) return &project;
  project.addProblem(problem);
  return nullptr;
}

/// Fills a record of a former unit with what its file says now.
UnitRecord renewed(const UnitCore& former, UnitHead& head) {
  const UnitRecord& old = former.record();
  UnitRecord record = recordOf(*old.folder, old.fileName, old.type, head);
  record.referenced = old.referenced;
  record.controlledFile = old.controlledFile;
  record.directoryUnit = old.directoryUnit;
  if (!former.isOwnFile()) record.name = old.name;
  return record;
}

}  // namespace

UnitCore* reloadUnit(UnitCore& unit) {
  Project& project = unit.project();
  if (&unit == &project) return reloadProject(project);
  std::optional<UnitHead> head = usableHead(project, unit.fullFileName(), unit.record().type);
  if (!head) return nullptr;
  return &project.replace(unit, renewed(unit, *head));
}

UnitCore* addFile(Project& project, const std::string& fileName) {
  if (UnitCore* known = project.unitByFile(fileName)) return reloadUnit(*known);
  const std::string& root = project.record().folder->path;
  std::string name = fileName;
  if (isInside(root, name)) name.erase(0, std::min(root.size() + 1, name.size()));
  const std::optional<std::string> relative = plainRelative(name);
  const auto depth = relative ? std::count(relative->begin(), relative->end(), HostSeparator) : 0;
  if (!relative || relative->empty() || depth > MaximumFolderDepth) return nullptr;
  std::string ownName(baseName(*relative));
  const FileType* type = project.types().ofFile(ownName);
  std::optional<UnitHead> head = usableHead(project, joinPath(root, *relative), type);
  if (!head) return nullptr;
  Folder& folder = project.folders().below(std::string(parentPath(*relative)));
  UnitRecord record = recordOf(folder, ownName, type, *head);
  if (!type) {
    project.addControlled(*relative);
    return &project.add(std::move(record), &project);
  }
  if (folder.owner || !folder.parent ||
      !FileTypes::isDirectoryUnit(*type, record.fileName, baseName(folder.path))) {
    return &project.add(std::move(record), &project.ownerOf(folder));
  }
  record.directoryUnit = true;
  folder.owner = &project.add(std::move(record), &project.ownerOf(*folder.parent));
  return folder.owner;
}

bool QuickReload::CanReloadUnit(IUnit* unit) {
  const UnitCore* core = UnitCore::of(unit);
  return core && core->hasFile() && !core->record().stub && !core->record().controlledFile;
}

IUnit* QuickReload::reloadUnit(IUnit* unit) {
  UnitCore* core = CanReloadUnit(unit) ? UnitCore::of(unit) : nullptr;
  UnitCore* fresh = core ? host::reloadUnit(*core) : nullptr;
  return fresh ? &fresh->unit() : nullptr;
}

IUnit* FileAdder::addToModel(const std::string& fileName) {
  std::error_code unknown;
  std::string name = fileName;
  if (!fs::path(fileName).is_absolute()) {
    const std::string inDirectory = joinPath(m_directory, fileName);
    if (fs::is_regular_file(inDirectory, unknown)) name = inDirectory;
  }
  UnitCore* added = addFile(m_project, name);
  return added ? &added->unit() : nullptr;
}

FileCompare::FileCompare(std::string fullFileName) : m_file(std::move(fullFileName)) {
  static const FileTypes types;
  const FileType* type = types.ofFile(baseName(m_file));
  m_own = type && type->own;
}

FileCompare::Snapshot FileCompare::snapshot() const {
  const Result<std::string> text = readFile(m_file, ModelFileLimit);
  if (!text) return {};
  const std::size_t header = m_own ? commentHeaderLength(*text) : 0;
  return {true, withoutExpansions(std::string_view(*text).substr(header))};
}

int FileCompare::Compare() {
  return m_before.readable && m_after.readable && m_before.content == m_after.content ? 1 : 0;
}

IUnit* FileCompare::atm(IUnit* unit) {
  if (!unit) return nullptr;
  unit->updateCMHeader();
  unit->updateMode({});
  return unit;
}

}  // namespace veldra::host
