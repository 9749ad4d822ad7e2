#include "host/model/Project.h"

#include <algorithm>
#include <utility>

#include "host/model/PathNames.h"
#include "host/platform/AtomicFile.h"

namespace veldra::host {
namespace {

UnitRecord projectRecord(Folder& folder, const std::string& fileName, const FileType* type,
                         const ProjectFile& file, const UnitHead& head) {
  UnitRecord record;
  record.folder = &folder;
  record.fileName = fileName;
  record.type = type;
  record.unitType = "Project";
  record.name = file.name.empty() ? std::string(stemOf(fileName)) : file.name;
  record.header = file.text.header;
  record.mode = head.mode;
  record.fileTime = head.facts.written;
  return record;
}

const FileType* projectType() {
  static const FileTypes types;
  return types.ofExtension(FileExtension::Project);
}

}  // namespace

FolderTree::FolderTree(std::string root) {
  m_folders.push_back({std::move(root), {}, nullptr, nullptr});
  m_byName[""] = &m_folders.front();
}

Folder& FolderTree::below(const std::string& relative) {
  const auto known = m_byName.find(relative);
  if (known != m_byName.end()) return *known->second;
  Folder& parent = below(std::string(parentPath(relative)));
  m_folders.push_back({joinPath(root().path, relative), relative, &parent, nullptr});
  return *(m_byName[relative] = &m_folders.back());
}

Folder& FolderTree::outside(const std::string& path) {
  const auto known = m_byName.find(path);
  if (known != m_byName.end()) return *known->second;
  m_folders.push_back({path, {}, nullptr, nullptr});
  return *(m_byName[path] = &m_folders.back());
}

Project::Project(std::unique_ptr<FolderTree> folders, const std::string& fileName, ProjectFile file,
                 const UnitHead& head, PropertyLayers& layers)
    : UnitOf(*this, projectRecord(folders->root(), fileName, projectType(), file, head)),
      m_folders(std::move(folders)),
      m_file(std::move(file)),
      m_properties(layers),
      m_index(m_folders->root().path),
      m_component(*this),
      m_configuration(*this) {
  for (const FileType& type : m_file.fileTypes) {
    if (!m_types.add(type)) {
      addProblem({fullFileName(),
                  "\"" + type.extension + "\" cannot be a file type of the project.",
                  "Choose an extension that begins with a dot and is none of Veldra's own."});
    }
  }
  m_folders->root().owner = this;
  m_files.push_back(this);
  m_index.put(fileName, this);
  takeProperties();
}

Project::~Project() {
  m_properties.setProjectListener({});
  m_properties.clearProject();
}

void Project::takeProperties() {
  m_properties.clearProject();
  const std::string source = fullFileName();
  for (const TomlSettings::Entry& entry : m_file.properties) {
    m_properties.addLoaded(entry.key, entry.value, source);
  }
  m_properties.setProjectListener([this] { markModified(true); });
}

std::string Project::getFileExtension() const {
  return extensionOf(record().fileName);
}

// --- units ---

void Project::needUnits() const {
  if (!m_unitSource) return;
  // That they are not there yet is nothing that anyone can see from outside.
  auto& self = const_cast<Project&>(*this);
  std::exchange(self.m_unitSource, {})(self);
  if (m_loadListener) m_loadListener();
}

void Project::expectUnits(std::size_t count) {
  m_files.reserve(m_files.size() + count);
  m_units.reserve(m_units.size() + count);
  m_index.reserve(m_files.size() + count);
}

UnitCore& Project::add(UnitRecord record, UnitCore* owner) {
  const bool hasFile = !record.fileName.empty();
  std::unique_ptr<UnitCore> unit = makeUnit(*this, std::move(record));
  UnitCore& added = *unit;
  added.setOwner(owner);
  if (!hasFile) {
    m_packages.push_back(std::move(unit));
    return added;
  }
  added.setPlace(m_files.size());
  m_files.push_back(&added);
  m_units.push_back(std::move(unit));
  m_index.put(added.relativeFileName(), &added);
  return added;
}

UnitCore& Project::replace(UnitCore& former, UnitRecord record) {
  std::unique_ptr<UnitCore> unit = makeUnit(*this, std::move(record));
  UnitCore& fresh = *unit;
  fresh.takePlaceOf(former);
  fresh.setPlace(former.place());
  fresh.setState(former.state());
  Folder& folder = *fresh.record().folder;
  if (folder.owner == &former) folder.owner = &fresh;
  m_files[fresh.place()] = &fresh;
  m_index.put(fresh.relativeFileName(), &fresh);
  former.retire();
  // The project itself has the first place and is in no list of units.
  std::swap(m_units[fresh.place() - 1], unit);
  m_retired.push_back(std::move(unit));
  return fresh;
}

void Project::unitMoved(UnitCore& unit, const std::string& formerFullName) {
  const UnitCore* known = m_index.find(formerFullName);
  if (known == &unit) {
    const std::string_view folder = unit.record().folder->relative;
    m_index.remove(joinPath(folder, baseName(formerFullName)));
  }
  m_index.put(unit.relativeFileName(), &unit);
}

UnitCore& Project::ownerOf(Folder& folder) {
  if (folder.owner) return *folder.owner;
  UnitRecord record;
  record.folder = &folder;
  record.unitType = "Package";
  record.name = std::string(baseName(folder.path));
  record.directoryUnit = true;
  UnitCore& above = folder.parent ? ownerOf(*folder.parent) : *this;
  folder.owner = &add(std::move(record), &above);
  return *folder.owner;
}

std::vector<UnitCore*> Project::unitsByName(std::string_view qualifiedName) const {
  std::vector<UnitCore*> found = {const_cast<Project*>(this)};
  for (std::size_t from = 0; from <= qualifiedName.size();) {
    const std::size_t to = std::min(qualifiedName.find("::", from), qualifiedName.size());
    const std::string_view part = qualifiedName.substr(from, to - from);
    std::vector<UnitCore*> below;
    for (const UnitCore* owner : found) {
      for (UnitCore* child : owner->children()) {
        if (child->record().name == part) below.push_back(child);
      }
    }
    found = std::move(below);
    from = to + 2;
  }
  return found;
}

// --- the project file ---

const UnitArchive* Project::archiveOf(const std::string& relativeFileName) const {
  const auto found = m_file.archives.find(relativeFileName);
  return found == m_file.archives.end() ? nullptr : &found->second;
}

template <class Change>
void Project::changeArchive(const std::string& relativeFileName, Change change) {
  const UnitArchive* present = archiveOf(relativeFileName);
  const UnitArchive former = present ? *present : UnitArchive{};
  UnitArchive changed = former;
  change(changed);
  if (changed == former) return;
  if (changed == UnitArchive{}) {
    m_file.archives.erase(relativeFileName);
  } else {
    m_file.archives[relativeFileName] = std::move(changed);
  }
  markModified(true);
}

void Project::setProviderArchive(const std::string& relativeFileName, const std::string& projName,
                                 const std::string& auxProjPath) {
  changeArchive(relativeFileName, [&](UnitArchive& archive) {
    archive.projName = projName;
    archive.auxProjPath = auxProjPath;
  });
}

void Project::setBatchArchive(const std::string& relativeFileName, const std::string& archive) {
  changeArchive(relativeFileName, [&](UnitArchive& entry) { entry.archive = archive; });
}

void Project::addControlled(const std::string& relativeFileName) {
  std::vector<std::string>& list = m_file.controlled;
  const auto listed = [&list](const std::string& name) {
    return std::find(list.begin(), list.end(), name) != list.end();
  };
  if (listed(relativeFileName) || listed(EveryOtherFile)) return;
  list.push_back(relativeFileName);
  markModified(true);
}

bool Project::reloadFile(Problem& problem) {
  const std::string path = fullFileName();
  const Result<std::string> bytes = readFile(path, ModelFileLimit);
  if (!bytes) {
    problem = {path, bytes.error(), "Fetch the file again from the archive."};
    return false;
  }
  Problems wrong;
  std::optional<ProjectFile> file = parseProjectFile(*bytes, problem, wrong);
  problem.file = path;
  if (!file) return false;
  for (Problem& one : wrong) {
    one.file = path;
    addProblem(one);
  }
  m_file = std::move(*file);
  UnitHead head = readUnitHead(path, record().type);
  takeHead(head);
  takeProperties();
  markModified(false);
  return true;
}

// --- problems and saving ---

void Project::addProblem(const Problem& problem) {
  if (m_knownProblems.insert(problem.file + '\n' + problem.what).second) {
    m_problems.push_back(problem);
  }
}

std::string Project::getVdId() const {
  const Json* const id = member(m_file.text.body, "id");
  return id && id->is_string() ? id->get<std::string>() : std::string();
}

ModelText* Project::content(Problem& problem) {
  (void)problem;
  return &m_file.text;
}

ModelText* Project::contentToSave() {
  updateProjectText(m_file, m_properties.projectEntries());
  return &m_file.text;
}

Problems Project::saveModified() {
  Problems failed;
  // What is not loaded has not been changed.
  for (UnitCore* unit : m_files) {
    Problem problem;
    if (unit->isModified() && !unit->save(problem)) failed.push_back(std::move(problem));
  }
  return failed;
}

void Project::checkContents() {
  for (UnitCore* unit : files()) {
    if (unit == this || !unit->isOwnFile() || unit->record().stub) continue;
    const Result<std::string> bytes = readFile(unit->fullFileName(), ModelFileLimit);
    Problem problem;
    if (!bytes) {
      addProblem({unit->fullFileName(), bytes.error(), "Fetch the file again from the archive."});
    } else if (!parseModelText(*bytes, problem)) {
      problem.file = unit->fullFileName();
      addProblem(problem);
    }
  }
}

}  // namespace veldra::host
