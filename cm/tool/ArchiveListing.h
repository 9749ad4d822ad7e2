#pragma once

#include <initializer_list>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "cm/core/CMArchiveItem.h"
#include "cm/core/CMArchiveItemList.h"
#include "cm/host/SPString.h"
#include "cm/templates/PropertyPattern.h"

namespace veldra {

/// Reads the answer of a list-archive command, once, be it while the command is still running. All
/// settings are looked up when it is made.
class ArchiveListing {
 public:
  ArchiveListing();

  /// Reads what is complete by now. Each text begins with the one before.
  void readAhead(std::string_view soFar);
  /// Appends an item for every record of `output` that names a file of this project; what was read
  /// ahead counts when `output` begins with it, and not when error lines have taken its place. The
  /// result of the last pattern, or `status` when there was no record or nothing says how to split
  /// them.
  int read(std::string_view output, int status, CMArchiveItemList& items);

 private:
  void startOver();
  void readRecord(std::string_view record);
  /// A record that names no file may say that those before it do not count.
  void startOverIfSaid(std::string_view record);
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
  PropertyPattern m_startsOver;

  std::optional<std::string> m_delimiter;
  PatternSplitter m_splitter;
  std::optional<int> m_status;  ///< The result of the last pattern.
  std::optional<CMArchiveItemListWrapper> m_items{std::in_place};
};

}  // namespace veldra
