#pragma once

#include <string>
#include <utility>

#include "cm/core/CMArgument.h"

namespace veldra {

/// "archive" and "archivedirectory": where the archive lies. Made from the empty text it stands for
/// the project's main archive.
class VELDRA_CM_EXPORT CMArchive : public CMPropertyArgument {
 public:
  explicit CMArchive(std::string path) : m_path(std::move(path)) {}
  int isNamed(const std::string& keyword) const override;
  std::string substitute(const std::string& keyword) override;

  /// How the user chooses an archive.
  enum ArchiveSelection : int { ArchiveDirectory = 0, ArchiveFile = 1, ArchiveUnset = 2 };
  static ArchiveSelection getArchiveSelection();

  /// The project's archive with its predefined keywords replaced; empty when there is none.
  static std::string getMainArchive();
  /// Makes `path` the project's archive. 0 without a project or when the host has no such property.
  static int setMainArchive(const std::string& path);

 private:
  std::string m_path;
};

}  // namespace veldra
