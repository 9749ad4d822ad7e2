#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

#include "cm/core/CMArchiveItemList.h"
#include "cm/templates/PropertyPattern.h"

namespace veldra {

/// Reads the answer of a list-archive command. All settings are looked up once, when it is made.
class ArchiveListing {
 public:
  ArchiveListing();

  /// Appends an item for every record of `output` that names a file of this project. The result of
  /// the last pattern, or `status` when there was no record or nothing says how to split them.
  int read(std::string_view output, int status, CMArchiveItemList& items) const;

 private:
  int readRecord(std::string_view record, CMArchiveItemList& items) const;
  bool isListed(const std::string& workingFile) const;
  PropertyPattern::Answer extract(const PropertyPattern& pattern, std::string_view record,
                                  std::string& value) const;
  std::string optionalField(const PropertyPattern& pattern, std::string_view record,
                            const char* label, int& status) const;
  void echo(std::initializer_list<std::string_view> pieces) const;

  std::string m_projectFile;
  std::string m_projectExtension;
  bool m_echoes;  ///< Debug lines are wanted.
  bool m_showsAllFiles;
  bool m_isXml;  ///< The values are as XML writes them.
  bool m_ignoresNamesWithoutDot;
  PropertyPattern m_workingFile;
  PropertyPattern m_version;
  PropertyPattern m_mode;
  PropertyPattern m_locker;
};

}  // namespace veldra
