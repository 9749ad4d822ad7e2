#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "host/model/FileTypes.h"
#include "host/model/Problem.h"

namespace veldra::host {

struct ScannedFolder {
  std::string relative;    ///< Below the root, with host separators; empty for the root.
  std::size_t parent = 0;  ///< Its place in the list; the root is its own parent.
};

struct ScannedFile {
  std::size_t folder = 0;  ///< Its folder's place in the list.
  std::string name;
  const FileType* type = nullptr;  ///< Null for a file that is no unit.
  bool isLink = false;
};

/// The folders and files below a root: parents before children, everything else by name.
struct FolderScan {
  std::vector<ScannedFolder> folders;
  std::vector<ScannedFile> files;
};

/// Folders below the root that are nested deeper are not searched.
inline constexpr int MaximumFolderDepth = 64;

/// Walks a folder for unit files, and for all other files when `otherFiles` is set.
///
/// Half-written files of a program that was killed are removed on the way.
///
/// Left out without a word: hidden folders and those in which CM tools keep their own records, and
/// Veldra's own working files. Reported and left out: links to folders, links that lead out of the
/// root, folders that cannot be read, folders nested too deep, and folders that are projects of
/// their own. Links to files inside the root are listed.
FolderScan scanFolder(const std::string& root, const FileTypes& types, bool otherFiles,
                      Problems& problems);

/// Whether it is the name of a folder in which CM tools keep their own records, or of a hidden one.
bool isRecordFolder(std::string_view name);

/// What the names of Veldra's own working files begin with.
inline constexpr char WorkingFilePrefix[] = ".veldra";

}  // namespace veldra::host
