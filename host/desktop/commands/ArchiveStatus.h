#pragma once

#include <string>
#include <unordered_map>

#include "host/desktop/commands/ArchiveCalls.h"

namespace veldra::host::desktop {

/// What the archive holds: who has which file, by its path below the project.
class ArchiveStatus {
 public:
  struct Entry {
    std::string version;
    std::string locker;
  };

  bool isKnown() const { return m_isKnown; }
  /// Null for a file that the archive does not hold.
  const Entry* find(const std::string& path) const;
  void forget();

  /// Lists the archive with the project's tool. What was known stays when that fails.
  CommandReport refresh(Project& project, BatchResults& results);

 private:
  bool m_isKnown = false;
  std::unordered_map<std::string, Entry> m_entries;
};

}  // namespace veldra::host::desktop
