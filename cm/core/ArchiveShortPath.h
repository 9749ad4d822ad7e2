#pragma once

#include <string>

#include "cm/host/Export.h"

namespace veldra {

class CMArchiveItem;

/// How the paths of archive items are shortened to their place in the project: as the settings are
/// when this is made, so that a long list asks for them once.
class VELDRA_CM_EXPORT ArchiveShortPath {
 public:
  ArchiveShortPath();
  /// See `CMArchiveItem::getNameNShortPath`.
  std::string of(const CMArchiveItem& item, bool withSuffix) const;

 private:
  bool m_hasNamesOnly;
  std::string m_repository;  ///< The tool's template; empty without one.
  std::string m_directory;   ///< What is taken off where there is no template.
};

}  // namespace veldra
