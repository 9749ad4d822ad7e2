#include "host/model/UnitLoader.h"

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <map>
#include <system_error>
#include <unordered_map>
#include <utility>

#include "host/model/FolderScan.h"
#include "host/model/HeadCache.h"
#include "host/model/PathNames.h"
#include "host/platform/RealPath.h"

namespace veldra::host {
namespace fs = std::filesystem;

namespace {

std::size_t depthOf(std::string_view relative) {
  return static_cast<std::size_t>(std::count(relative.begin(), relative.end(), HostSeparator));
}

/// Fills a project with the units that its folder, its lists and its references name.
class UnitLoader {
 public:
  UnitLoader(Project& project, std::string headCache)
      : m_project(project), m_headCache(std::move(headCache)) {}

  void run() {
    const std::vector<std::string>& controlled = m_project.file().controlled;
    m_everyOther =
        std::find(controlled.begin(), controlled.end(), EveryOtherFile) != controlled.end();
    for (const std::string& stub : m_project.file().stubs) noteStub(stub);
    loadTree();
    for (const std::string& file : controlled) addControlled(file, {}, m_project);
    for (std::size_t at = 0; at < m_listing.size(); ++at) addControlledOf(*m_listing[at]);
    for (const auto& [file, used] : m_stubs) {
      if (!used) addStub(file);
    }
    for (const std::string& reference : m_project.file().references) addReference(reference);
  }

 private:
  void report(const std::string& file, std::string what, std::string wayOut) {
    m_project.addProblem({file, std::move(what), std::move(wayOut)});
  }
  std::string absolute(const std::string& relative) const {
    return joinPath(m_project.record().folder->path, relative);
  }

  /// The plain form of a file name that the project lists; nothing, and reported, when it cannot be
  /// one.
  std::optional<std::string> listedName(const std::string& folder, const std::string& name) {
    std::optional<std::string> plain = plainRelative(joinPath(folder, name));
    const bool isRelative = plainRelative(name).has_value() || !folder.empty();
    if (plain && isRelative && !plain->empty() &&
        depthOf(*plain) <= static_cast<std::size_t>(MaximumFolderDepth)) {
      return plain;
    }
    report(
        name, "The listed file does not lie in the project.",
        "Correct its name in the list; it is relative and leads to no folder above the project.");
    return std::nullopt;
  }

  void noteStub(const std::string& name) {
    if (const std::optional<std::string> plain = listedName({}, name)) m_stubs[*plain] = false;
  }

  // --- the project's own folder ---

  void loadTree() {
    Problems problems;
    const std::string& root = m_project.record().folder->path;
    const FolderScan scan = scanFolder(root, m_project.types(), m_everyOther, problems);
    for (const Problem& problem : problems) m_project.addProblem(problem);
    std::vector<Folder*> folders;
    folders.reserve(scan.folders.size());
    for (const ScannedFolder& folder : scan.folders) {
      folders.push_back(&m_project.folders().below(folder.relative));
    }
    std::vector<const ScannedFile*> files;
    std::vector<HeadRequest> requests;
    files.reserve(scan.files.size());
    requests.reserve(scan.files.size());
    for (const ScannedFile& file : scan.files) {
      files.push_back(&file);
      requests.push_back({folders[file.folder]->path, file.name, file.type});
    }
    HeadCache cache(requests.size() < ManyHeads ? std::string() : m_headCache);
    std::vector<UnitHead> heads = readUnitHeads(requests, cache);
    cache.update(heads);
    dropRepeated(files, heads, folders);
    addFolderByFolder(files, heads, folders);
  }

  /// Two names of one file are one unit: the first that is no link stays.
  void dropRepeated(std::vector<const ScannedFile*>& files, std::vector<UnitHead>& heads,
                    const std::vector<Folder*>& folders) {
    const auto pathOf = [&](std::size_t at) {
      return joinPath(folders[files[at]->folder]->path, files[at]->name);
    };
    std::vector<bool> repeated(files.size(), false);
    std::unordered_map<FileIdentity, std::size_t, IdentityHash> firsts;
    firsts.reserve(files.size());
    for (const bool links : {false, true}) {
      for (std::size_t at = 0; at < files.size(); ++at) {
        if (heads[at].facts.state == FileFacts::State::Missing || files[at]->isLink != links)
          continue;
        const auto [first, isNew] = firsts.try_emplace(heads[at].facts.identity, at);
        if (isNew) continue;
        repeated[at] = true;
        report(pathOf(at), "It is the same file as " + pathOf(first->second) + ".",
               "Remove one of the two names, or make a copy of the file.");
      }
    }
    std::size_t kept = 0;
    for (std::size_t at = 0; at < files.size(); ++at) {
      if (repeated[at]) continue;
      if (kept != at) {
        files[kept] = files[at];
        heads[kept] = std::move(heads[at]);
      }
      ++kept;
    }
    files.resize(kept);
    heads.resize(kept);
  }

  /// A folder's own unit comes first, because it owns the others.
  void addFolderByFolder(const std::vector<const ScannedFile*>& files, std::vector<UnitHead>& heads,
                         const std::vector<Folder*>& folders) {
    m_project.expectUnits(files.size());
    for (std::size_t begin = 0, end = 0; begin < files.size(); begin = end) {
      Folder& folder = *folders[files[begin]->folder];
      const std::string_view name = baseName(folder.path);
      while (end < files.size() && files[end]->folder == files[begin]->folder) ++end;
      std::size_t own = begin;
      while (own < end && !(files[own]->type && FileTypes::isDirectoryUnit(
                                                    *files[own]->type, files[own]->name, name))) {
        ++own;
      }
      if (own < end) addDirectoryUnit(folder, *files[own], heads[own]);
      for (std::size_t at = begin; at < end; ++at) {
        if (at != own) addFile(folder, *files[at], heads[at]);
      }
    }
  }

  void addDirectoryUnit(Folder& folder, const ScannedFile& file, UnitHead& head) {
    UnitCore& owner = folder.parent ? m_project.ownerOf(*folder.parent) : m_project;
    UnitRecord record = recordOf(folder, file.name, file.type, head);
    record.directoryUnit = true;
    if (!file.type->own) record.name = std::string(baseName(folder.path));
    folder.owner = &addLoaded(std::move(record), head, owner);
  }

  void addFile(Folder& folder, const ScannedFile& file, UnitHead& head) {
    UnitRecord record = recordOf(folder, file.name, file.type, head);
    if (file.type) {
      addLoaded(std::move(record), head, m_project.ownerOf(folder));
      return;
    }
    UnitCore* owner = nullptr;
    for (Folder* up = &folder; !owner; up = up->parent) owner = up->owner;
    addLoaded(std::move(record), head, *owner);
  }

  void takeStub(UnitRecord& record) {
    const auto stub = m_stubs.find(joinPath(record.folder->relative, record.fileName));
    if (stub == m_stubs.end()) return;
    record.stub = true;
    stub->second = true;
  }

  UnitCore& addLoaded(UnitRecord record, UnitHead& head, UnitCore& owner) {
    if (!m_stubs.empty()) takeStub(record);
    const bool lists = head.mentionsControlled && !record.stub && !head.problem;
    if (head.problem) m_project.addProblem(*head.problem);
    UnitCore& unit = m_project.add(std::move(record), &owner);
    if (lists) m_listing.push_back(&unit);
    return unit;
  }

  // --- files that the project or a package lists ---

  void addControlledOf(UnitCore& unit) {
    Problem problem;
    const ModelText* text = unit.text(problem);
    if (!text) return m_project.addProblem(problem);
    Problems wrong;
    for (const std::string& file : textList(text->body, "controlled", wrong)) {
      addControlled(file, unit.record().folder->relative, unit);
    }
    for (Problem& one : wrong) {
      one.file = unit.fullFileName();
      m_project.addProblem(one);
    }
  }

  void addControlled(const std::string& name, const std::string& folder, UnitCore& owner) {
    if (name == EveryOtherFile) return;
    const std::optional<std::string> plain = listedName(folder, name);
    if (!plain || m_project.unitByFile(*plain)) return;
    const std::string path = absolute(*plain);
    if (leadsOutside(path)) {
      return report(path, "The listed file leads out of the project.",
                    "Copy it into the project, or take it from the list.");
    }
    UnitHead head = readUnitHead(path, nullptr);
    Folder& place = m_project.folders().below(std::string(parentPath(*plain)));
    UnitRecord record = recordOf(place, std::string(baseName(*plain)), nullptr, head);
    addLoaded(std::move(record), head, owner);
  }

  bool leadsOutside(const std::string& path) const {
    const std::string real = realPath(path);
    return !real.empty() && !isInside(realPath(m_project.record().folder->path), real);
  }

  void addStub(const std::string& relative) {
    if (m_project.unitByFile(relative)) return;
    UnitHead none;
    Folder& folder = m_project.folders().below(std::string(parentPath(relative)));
    std::string fileName(baseName(relative));
    const FileType* type = m_project.types().ofFile(fileName);
    UnitRecord record = recordOf(folder, std::move(fileName), type, none);
    record.stub = true;
    m_project.add(std::move(record), &m_project);
  }

  // --- units of other projects ---

  void addReference(const std::string& name) {
    const bool isAbsolute = fs::path(name).is_absolute();
    const std::string path = realPath(isAbsolute ? name : absolute(name));
    std::error_code unknown;
    if (path.empty()) {
      report(isAbsolute ? name : absolutePath(absolute(name)), "The reference leads nowhere.",
             "Get the other project, or correct the list of references.");
    } else if (isInside(path, m_project.record().folder->path)) {
      report(path, "The reference holds the project itself.", "Correct the list of references.");
    } else if (fs::is_directory(path, unknown)) {
      addReferencedFolder(path);
    } else {
      addReferenced(path);
    }
  }

  void addReferencedFolder(const std::string& root) {
    Problems problems;
    const FolderScan scan = scanFolder(root, m_project.types(), false, problems);
    for (const Problem& problem : problems) m_project.addProblem(problem);
    for (const ScannedFile& file : scan.files) {
      addReferenced(joinPath(joinPath(root, scan.folders[file.folder].relative), file.name));
    }
  }

  void addReferenced(const std::string& path) {
    if (m_project.unitByFile(path)) return;
    std::string fileName(baseName(path));
    const FileType* type = m_project.types().ofFile(fileName);
    UnitHead head = readUnitHead(path, type);
    Folder& folder = m_project.folders().outside(std::string(parentPath(path)));
    UnitRecord record = recordOf(folder, std::move(fileName), type, head);
    record.referenced = true;
    if (head.problem) m_project.addProblem(*head.problem);
    m_project.add(std::move(record), &m_project);
  }

  struct IdentityHash {
    std::size_t operator()(const FileIdentity& identity) const {
      // The devices of one project are few, and its files' numbers differ.
      return std::hash<std::uint64_t>{}(identity.file);
    }
  };

  Project& m_project;
  std::string m_headCache;
  bool m_everyOther = false;
  std::map<std::string, bool> m_stubs;  ///< By relative name; whether the folder has the file.
  std::vector<UnitCore*> m_listing;     ///< Units that may list controlled files.
};

}  // namespace

void loadUnits(Project& project, const std::string& headCache) {
  UnitLoader(project, headCache).run();
}

UnitRecord recordOf(Folder& folder, std::string fileName, const FileType* type, UnitHead& head) {
  UnitRecord record;
  record.folder = &folder;
  record.name =
      !head.name.empty() ? std::move(head.name) : std::string(type ? stemOf(fileName) : fileName);
  record.unitType = !head.unitType.empty() ? std::move(head.unitType)
                    : type                 ? type->unitType
                                           : "File";
  record.fileName = std::move(fileName);
  record.type = type;
  record.header = std::move(head.header);
  record.mode = head.mode;
  record.fileTime = head.facts.written;
  record.controlledFile = type == nullptr;
  record.mentionsProperties = head.mentionsProperties;
  return record;
}

}  // namespace veldra::host
