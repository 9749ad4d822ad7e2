#include "host/model/FolderScan.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <system_error>
#include <utility>

#include "host/model/PathNames.h"
#include "host/platform/AtomicFile.h"
#include "host/platform/FolderList.h"
#include "host/platform/RealPath.h"

namespace veldra::host {
namespace fs = std::filesystem;

namespace {

// Records of CM tools that are not hidden by a leading dot.
constexpr std::array<std::string_view, 5> RecordFolders = {"RCS", "CVS", "SCCS", "_svn", "_darcs"};

struct Entry {
  std::string name;
  bool isFolder = false;  ///< Links to folders count.
  bool isLink = false;
  bool operator<(const Entry& other) const { return name < other.name; }
};

// What the names of the files begin with that belong to a CM tool or to Veldra itself.
constexpr std::array<std::string_view, 6> RecordFiles = {
    WorkingFilePrefix, ".git", ".hg", ".svn", ".cvs", ".#"};

/// What a comparison adds to the name of a working file that it sets aside.
constexpr std::string_view SetAsideEnding = "_temp";

bool isRecordFile(const std::string& name) {
  return name.ends_with(",v") || std::ranges::any_of(RecordFiles, [&](std::string_view prefix) {
           return name.starts_with(prefix);
         });
}

/// A file or a folder that is being made, or that a killed program left half made.
bool isTemporary(const Entry& entry) {
  return entry.name.starts_with(WorkingFilePrefix) && entry.name.ends_with(".tmp");
}

class Walk {
 public:
  Walk(std::string root, const FileTypes& types, bool otherFiles, Problems& problems)
      : m_root(std::move(root)),
        m_realRoot(realPath(m_root)),
        m_types(types),
        m_otherFiles(otherFiles),
        m_problems(problems) {}

  FolderScan run() {
    m_scan.folders.push_back({});
    enter(0, 0);
    return std::move(m_scan);
  }

 private:
  // Recursion is bounded by `MaximumFolderDepth`.
  void enter(std::size_t folder, int depth) {
    const std::string relative = m_scan.folders[folder].relative;
    std::vector<Entry> entries;
    if (!list(pathOf(relative), entries)) return;
    if (depth > 0 && isProjectOfItsOwn(entries)) {
      report(relative, "The folder is a project of its own; its units are left to it.",
             "Open it as a project, or name it under \"references\" in the project file.");
      m_scan.folders.pop_back();
      return;
    }
    bringBack(pathOf(relative), entries);
    if (std::ranges::any_of(entries, isTemporary)) removeStaleTemporaries(pathOf(relative));
    for (const Entry& entry : entries) {
      if (!entry.isFolder) addFile(folder, relative, entry);
    }
    for (const Entry& entry : entries) {
      if (entry.isFolder && !isRecordFolder(entry.name)) {
        addFolder(folder, joinPath(relative, entry.name), entry.isLink, depth + 1);
      }
    }
  }

  /// Unit files that a killed comparison left under another name.
  void bringBack(const std::string& folder, std::vector<Entry>& entries) {
    std::vector<std::string> missing;
    for (const Entry& entry : entries) {
      if (entry.isFolder || !entry.name.ends_with(SetAsideEnding)) continue;
      const std::string name = entry.name.substr(0, entry.name.size() - SetAsideEnding.size());
      if (m_types.ofFile(name) != nullptr) missing.push_back(name);
    }
    if (missing.empty() || restoreSetAside(folder, missing) == 0) return;
    entries.clear();
    list(folder, entries);
  }

  static bool isProjectOfItsOwn(const std::vector<Entry>& entries) {
    return std::any_of(entries.begin(), entries.end(), [](const Entry& entry) {
      return !entry.isFolder && FileTypes::isProjectFile(entry.name);
    });
  }

  bool list(const std::string& path, std::vector<Entry>& entries) {
    std::string error;
    for (FolderEntry& found : listFolder(path, error)) {
      // Pipes, sockets and devices are no files of a model.
      if (found.kind == FolderEntry::Kind::Other) continue;
      const bool isLink = found.kind == FolderEntry::Kind::Link;
      std::error_code unknown;
      const bool isFolder = found.kind == FolderEntry::Kind::Folder ||
                            (isLink && fs::is_directory(joinPath(path, found.name), unknown));
      entries.push_back({std::move(found.name), isFolder, isLink});
    }
    if (!error.empty()) {
      m_problems.push_back({path, "The folder cannot be read: " + error + ".",
                            "Give yourself the right to read it, or remove it."});
    }
    std::sort(entries.begin(), entries.end());
    return error.empty();
  }

  void addFile(std::size_t folder, const std::string& relative, const Entry& entry) {
    const FileType* type = m_types.ofFile(entry.name);
    if (type && FileTypes::isProjectFile(entry.name)) return;
    if ((!type && !m_otherFiles) || isRecordFile(entry.name)) return;
    if (entry.isLink && !leadsToOwnFile(joinPath(relative, entry.name))) return;
    m_scan.files.push_back({folder, entry.name, type, entry.isLink});
  }

  void addFolder(std::size_t parent, const std::string& relative, bool isLink, int depth) {
    if (isLink) return reportFolderLink(relative);
    if (depth > MaximumFolderDepth) {
      return report(relative,
                    "The folder is nested deeper than " + std::to_string(MaximumFolderDepth) +
                        " levels and is not searched.",
                    "Move it further up.");
    }
    m_scan.folders.push_back({relative, parent});
    enter(m_scan.folders.size() - 1, depth);
  }

  bool leadsToOwnFile(const std::string& relative) {
    const std::string target = realPath(pathOf(relative));
    if (target.empty()) {
      report(relative, "The link leads nowhere.", "Remove it, or restore what it leads to.");
    } else if (!isInside(m_realRoot, target)) {
      reportOutside(relative);
    } else {
      std::error_code unknown;
      return fs::is_regular_file(target, unknown);
    }
    return false;
  }

  void reportFolderLink(const std::string& relative) {
    const std::string target = realPath(pathOf(relative));
    const std::string place = realPath(std::string(parentPath(pathOf(relative))));
    if (!isInside(m_realRoot, target)) {
      reportOutside(relative);
    } else if (isInside(target, place)) {
      report(relative, "The link leads round in a circle and is not followed.", "Remove it.");
    } else {
      report(relative, "The link leads to another folder of the project and is not followed.",
             "Remove it; the folder's units have their place where it really lies.");
    }
  }

  void reportOutside(const std::string& relative) {
    report(relative, "The link leads out of the project and is not followed.",
           "Copy what it leads to into the project, or name it under \"references\" in the project "
           "file.");
  }

  void report(const std::string& relative, std::string what, std::string wayOut) {
    m_problems.push_back({pathOf(relative), std::move(what), std::move(wayOut)});
  }

  std::string pathOf(const std::string& relative) const {
    return relative.empty() ? m_root : joinPath(m_root, relative);
  }

  const std::string m_root;
  const std::string m_realRoot;
  const FileTypes& m_types;
  const bool m_otherFiles;
  Problems& m_problems;
  FolderScan m_scan;
};

}  // namespace

bool isRecordFolder(std::string_view name) {
  return name.starts_with('.') ||
         std::find(RecordFolders.begin(), RecordFolders.end(), name) != RecordFolders.end();
}

FolderScan scanFolder(const std::string& root, const FileTypes& types, bool otherFiles,
                      Problems& problems) {
  return Walk(root, types, otherFiles, problems).run();
}

}  // namespace veldra::host
