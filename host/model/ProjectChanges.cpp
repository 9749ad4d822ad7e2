// The part of a project that follows files which have been deleted, moved or renamed.

#include <algorithm>
#include <utility>

#include "host/model/PathNames.h"
#include "host/model/Project.h"

namespace veldra::host {
namespace {

/// What becomes of a listed name when `from` becomes `to`; nothing when it is not concerned.
std::optional<std::string> changedName(const std::string& name, const std::string& from,
                                       const std::string& to) {
  const std::optional<std::string> plain = plainRelative(name);
  if (!plain || !isInside(from, *plain)) return std::nullopt;
  return to.empty() ? std::string() : to + plain->substr(from.size());
}

/// Changes the names of a list; those that become empty go. False when none is concerned.
bool changeNames(std::vector<std::string>& names, const std::string& from, const std::string& to) {
  bool changes = false;
  for (std::string& name : names) {
    std::optional<std::string> changed = changedName(name, from, to);
    if (!changed) continue;
    name = std::move(*changed);
    changes = true;
  }
  std::erase(names, std::string());
  return changes;
}

bool changeArchives(UnitArchives& archives, const std::string& from, const std::string& to) {
  UnitArchives changed;
  bool changes = false;
  for (auto& [name, archive] : archives) {
    std::optional<std::string> other = changedName(name, from, to);
    changes = changes || other;
    if (!other) {
      changed[name] = archive;
    } else if (!other->empty()) {
      changed[*other] = archive;
    }
  }
  archives = std::move(changed);
  return changes;
}

/// Stubs are kept in the text alone, with whether each is loaded.
bool changeStubs(Json& body, const std::string& from, const std::string& to) {
  const auto stubs = body.find("stubs");
  if (stubs == body.end() || !stubs->is_array()) return false;
  bool changes = false;
  Json kept = Json::array();
  for (Json& stub : *stubs) {
    const Json* file = stub.is_object() ? member(stub, "file") : nullptr;
    const std::optional<std::string> name = file ? scalarText(*file) : std::nullopt;
    const std::optional<std::string> other =
        name ? changedName(nameFromStored(*name), from, to) : std::nullopt;
    changes = changes || other;
    if (other && other->empty()) continue;
    if (other) stub["file"] = jsonOfBytes(storedName(*other));
    kept.push_back(std::move(stub));
  }
  *stubs = std::move(kept);
  return changes;
}

}  // namespace

bool Project::lists(const std::string& relative) const {
  ProjectFile copy = m_file;
  const bool names = changeNames(copy.controlled, relative, {});
  const bool archives = changeArchives(copy.archives, relative, {});
  return changeStubs(copy.text.body, relative, {}) || names || archives;
}

void Project::changeLists(const std::string& relative, const std::string& newRelative) {
  const bool names = changeNames(m_file.controlled, relative, newRelative);
  const bool archives = changeArchives(m_file.archives, relative, newRelative);
  if (changeStubs(m_file.text.body, relative, newRelative) || names || archives) {
    markModified(true);
  }
}

void Project::renumberFiles(std::size_t from) {
  for (std::size_t at = from; at < m_files.size(); ++at) m_files[at]->setPlace(at);
}

void Project::remove(UnitCore& unit) {
  if (&unit == this) return;
  const std::string relative = unit.relativeFileName();
  while (!unit.children().empty()) {
    UnitCore& child = *unit.children().front();
    child.leaveOwner();
    child.setOwner(unit.owner());
  }
  unit.leaveOwner();
  Folder& folder = *unit.record().folder;
  if (folder.owner == &unit) folder.owner = nullptr;
  unit.retire();
  if (!unit.hasFile()) {
    const auto at = std::ranges::find(m_packages, &unit, &std::unique_ptr<UnitCore>::get);
    m_retired.push_back(std::move(*at));
    m_packages.erase(at);
    return;
  }
  m_index.remove(relative);
  const auto place = static_cast<std::ptrdiff_t>(unit.place());
  // The project itself has the first place and is in no list of units.
  m_retired.push_back(std::move(m_units[unit.place() - 1]));
  m_units.erase(m_units.begin() + place - 1);
  m_files.erase(m_files.begin() + place);
  renumberFiles(static_cast<std::size_t>(place));
  changeLists(relative, {});
}

void Project::moveFile(UnitCore& unit, const std::string& relativeFileName) {
  const std::string former = unit.relativeFileName();
  Folder& folder = m_folders->below(std::string(parentPath(relativeFileName)));
  const bool leavesFolder = unit.record().folder != &folder;
  unit.setFile(folder, std::string(baseName(relativeFileName)));
  m_index.remove(former);
  m_index.put(relativeFileName, &unit);
  if (leavesFolder && folder.owner != &unit) {
    unit.leaveOwner();
    unit.setOwner(&ownerOf(folder));
  }
  unit.takeFile();
  changeLists(former, relativeFileName);
}

void Project::moveFolderOf(UnitCore& unit, const std::string& relative,
                           const std::string& newRelative) {
  Folder& former = *unit.record().folder;
  if (unit.record().referenced || !isInside(relative, former.relative)) return;
  Folder& folder = m_folders->below(newRelative + former.relative.substr(relative.size()));
  const std::string formerFile = unit.relativeFileName();
  unit.setFile(folder, unit.record().fileName);
  if (former.owner == &unit) folder.owner = std::exchange(former.owner, nullptr);
  if (!unit.hasFile()) return unit.takeFolderName();
  m_index.remove(formerFile);
  m_index.put(unit.relativeFileName(), &unit);
  unit.takeFile();
}

void Project::moveFolder(const std::string& relative, const std::string& newRelative) {
  UnitCore* const package = folders().below(relative).owner;
  for (UnitCore* unit : m_files) {
    if (unit != this) moveFolderOf(*unit, relative, newRelative);
  }
  for (const std::unique_ptr<UnitCore>& unit : m_packages) {
    moveFolderOf(*unit, relative, newRelative);
  }
  Folder& folder = m_folders->below(newRelative);
  if (package && folder.owner == package) {
    package->leaveOwner();
    package->setOwner(&ownerOf(*folder.parent));
  }
  changeLists(relative, newRelative);
}

}  // namespace veldra::host
