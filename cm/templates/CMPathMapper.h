#pragma once

#include <string>

#include "cm/host/Export.h"

namespace veldra {

/// Turns local paths into archive paths and back with the help of the tool property "Repository".
class VELDRA_CM_EXPORT CMPathMapper {
 public:
  /// The directories of a local path below the working directory; empty for a path outside it.
  static std::string getArchiveSubDirFromLocalPath(const std::string& localPath);
  static std::string getArchivePathFromLocalPath(const std::string& localPath);
  static std::string getLocalPathFromArchivePath(const std::string& archivePath);
};

}  // namespace veldra
