#pragma once

#include <svn_ra.h>

#include <string>
#include <unordered_map>

#include "providers/subversion/status/FileState.h"

namespace veldra::subversion {

/// What changed in a store between two revisions, by path.
class StoreChanges {
 public:
  /// False when the folder that the session is open on does not exist any more.
  [[nodiscard]] bool read(svn_ra_session_t* session, svn_revnum_t from, svn_revnum_t to);

  /// Marks a file as out of date, or as deleted, when something newer than its revision changed it
  /// or a folder above it.
  void applyTo(FileState& state) const;

 private:
  struct Change {
    svn_revnum_t revision;
    char action;
  };

  static svn_error_t* receive(void* baton, svn_log_entry_t* entry, apr_pool_t* pool);
  void take(const std::string& path, Change change);

  std::unordered_map<std::string, Change> m_newest;  ///< Of whatever kind.
  std::unordered_map<std::string, Change>
      m_newestOfFolder;  ///< That replaced or removed all below.
};

}  // namespace veldra::subversion
