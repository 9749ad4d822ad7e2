#include "providers/subversion/status/StoreChanges.h"

#include <svn_error_codes.h>

#include "providers/subversion/runtime/Failure.h"
#include "providers/subversion/runtime/Pool.h"

namespace veldra::subversion {

void StoreChanges::take(const std::string& path, Change change) {
  // The newest revision comes first and stays.
  m_newest.try_emplace(path, change);
  if (change.action != 'M') m_newestOfFolder.try_emplace(path, change);
}

svn_error_t* StoreChanges::receive(void* baton, svn_log_entry_t* entry, apr_pool_t* pool) {
  return withoutThrowing([&] {
    if (!entry->changed_paths2) return;
    for (apr_hash_index_t* i = apr_hash_first(pool, entry->changed_paths2); i;
         i = apr_hash_next(i)) {
      const auto* path = static_cast<const char*>(apr_hash_this_key(i));
      const auto* change = static_cast<const svn_log_changed_path2_t*>(apr_hash_this_val(i));
      static_cast<StoreChanges*>(baton)->take(path + 1, {entry->revision, change->action});
    }
  });
}

bool StoreChanges::read(svn_ra_session_t* session, svn_revnum_t from, svn_revnum_t to) {
  const Pool pool;
  apr_array_header_t* const everything = apr_array_make(pool, 1, sizeof(const char*));
  APR_ARRAY_PUSH(everything, const char*) = "";
  apr_array_header_t* const noProperties = apr_array_make(pool, 0, sizeof(const char*));
  svn_error_t* const error = svn_ra_get_log2(session, everything, to, from, 0, TRUE, FALSE, FALSE,
                                             noProperties, receive, this, pool);
  return !isOneOf(error, SVN_ERR_FS_NOT_FOUND);
}

void StoreChanges::applyTo(FileState& state) const {
  const auto own = m_newest.find(state.pathInStore);
  if (own != m_newest.end() && own->second.revision > state.revision) {
    state.isOutOfDate = true;
    state.isDeleted = state.isDeleted || own->second.action == 'D';
  }
  if (m_newestOfFolder.empty()) return;
  std::string folder = state.pathInStore;
  for (std::size_t slash = folder.rfind('/'); slash != std::string::npos;
       slash = folder.rfind('/')) {
    folder.resize(slash);
    const auto change = m_newestOfFolder.find(folder);
    if (change == m_newestOfFolder.end() || change->second.revision <= state.revision) continue;
    state.isOutOfDate = true;
    state.isDeleted = state.isDeleted || change->second.action == 'D';
  }
}

}  // namespace veldra::subversion
