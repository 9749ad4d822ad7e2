#include "providers/subversion/status/StoreStatus.h"

#include <svn_dirent_uri.h>
#include <svn_error_codes.h>
#include <svn_path.h>
#include <svn_ra.h>

#include <algorithm>
#include <map>
#include <vector>

#include "providers/subversion/runtime/Failure.h"
#include "providers/subversion/status/StoreChanges.h"

namespace veldra::subversion {
namespace {

/// So many revisions are looked at one by one.
constexpr svn_revnum_t FarBehind = 2000;

using StatesOfStore = std::vector<FileState*>;

/// The deepest folder that holds all of them.
std::string commonParent(const StatesOfStore& states) {
  std::string common = states.front()->pathInStore;
  const auto goUp = [&common] {
    const std::size_t slash = common.rfind('/');
    common.resize(slash == std::string::npos ? 0 : slash);
  };
  goUp();
  for (const FileState* state : states) {
    const std::string& path = state->pathInStore;
    while (!common.empty() && !(path.starts_with(common) && path[common.size()] == '/')) goUp();
  }
  return common;
}

svn_ra_session_t* openSession(Client& client, const std::string& root, const std::string& folder,
                              apr_pool_t* pool) {
  svn_ra_session_t* session = nullptr;
  const char* url = svn_path_url_add_component2(root.c_str(), folder.c_str(), pool);
  check(svn_client_open_ra_session2(&session, url, nullptr, client, pool, pool));
  return session;
}

void addHolders(svn_ra_session_t* session, const StatesOfStore& states, apr_pool_t* pool) {
  apr_hash_t* locks = nullptr;
  check(svn_ra_get_locks2(session, &locks, "", svn_depth_infinity, pool));
  if (apr_hash_count(locks) == 0) return;
  std::string key = "/";
  for (FileState* state : states) {
    key.replace(1, std::string::npos, state->pathInStore);
    if (const void* lock = apr_hash_get(locks, key.data(), static_cast<apr_ssize_t>(key.size())))
      state->holder = holderFrom(*static_cast<const svn_lock_t*>(lock));
  }
}

bool askOneStore(Client& client, const std::string& root, const StatesOfStore& states) {
  const Pool pool;
  svn_ra_session_t* const session = openSession(client, root, commonParent(states), pool);
  svn_revnum_t youngest = SVN_INVALID_REVNUM;
  check(svn_ra_get_latest_revnum(session, &youngest, pool));
  svn_revnum_t oldest = youngest;
  for (const FileState* state : states) {
    if (SVN_IS_VALID_REVNUM(state->revision)) oldest = std::min(oldest, state->revision);
  }
  if (youngest - oldest > FarBehind) return false;
  if (oldest < youngest) {
    StoreChanges changes;
    if (!changes.read(session, oldest + 1, youngest)) return false;
    for (FileState* state : states) changes.applyTo(*state);
  }
  addHolders(session, states, pool);
  return true;
}

}  // namespace

bool askStore(Client& client, FileStates& states) {
  std::map<std::string_view, StatesOfStore> byRoot;
  for (auto& [path, state] : states) {
    if (state.isControlled && state.root && !state.pathInStore.empty())
      byRoot[*state.root].push_back(&state);
  }
  return std::ranges::all_of(byRoot, [&client](const auto& store) {
    return askOneStore(client, std::string(store.first), store.second);
  });
}

std::unordered_map<std::string, Holder> holdersBelow(Project& project) {
  const Pool pool;
  const char* folder = svn_uri_skip_ancestor(project.root.c_str(), project.url.c_str(), pool);
  if (!folder) return {};
  apr_hash_t* locks = nullptr;
  svn_ra_session_t* const session = openSession(project.client, project.root, folder, pool);
  check(svn_ra_get_locks2(session, &locks, "", svn_depth_infinity, pool));
  std::unordered_map<std::string, Holder> holders;
  for (apr_hash_index_t* i = apr_hash_first(pool, locks); i; i = apr_hash_next(i)) {
    const auto* path = static_cast<const char*>(apr_hash_this_key(i)) + 1;
    const char* below = svn_relpath_skip_ancestor(folder, path);
    if (!below) continue;
    holders.emplace(svn_dirent_join(project.localPath.c_str(), below, pool),
                    *holderFrom(*static_cast<const svn_lock_t*>(apr_hash_this_val(i))));
  }
  return holders;
}

}  // namespace veldra::subversion
