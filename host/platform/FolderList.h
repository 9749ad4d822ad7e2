#pragma once

#include <string>
#include <vector>

namespace veldra::host {

/// One name in a folder.
struct FolderEntry {
  enum class Kind { File, Folder, Link, Other };
  std::string name;
  Kind kind = Kind::Other;  ///< Of the entry itself: links are not followed.
};

/// The names in a folder except "." and "..", in no order. Nothing is opened, so that a folder of
/// many thousand files takes few calls of the system.
///
/// `error` gets the system's words when the folder cannot be read to its end; what was read until
/// then is returned.
std::vector<FolderEntry> listFolder(const std::string& path, std::string& error);

}  // namespace veldra::host
