#pragma once

#include <cstddef>
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
  /// The tool's "Repository" says what stands before the sub-directories, and between them and the
  /// file name.
  void readTemplate(std::string repository);

  bool m_hasNamesOnly;
  std::string m_directory;     ///< What is taken off where there is no template.
  std::string m_head;          ///< What the template has before the sub-directories.
  std::size_t m_headSize = 0;  ///< More than it has when they stand behind the file name.
  std::string m_tail;          ///< And behind them; empty for a mere separator.
};

}  // namespace veldra
