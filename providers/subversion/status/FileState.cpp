#include "providers/subversion/status/FileState.h"

#include <svn_client.h>

#include <mutex>
#include <set>

namespace veldra::subversion {

using namespace scc;

namespace {

bool isIn(svn_wc_status_kind kind) {
  switch (kind) {
    case svn_wc_status_none:
    case svn_wc_status_unversioned:
    case svn_wc_status_ignored:
    case svn_wc_status_external:
    case svn_wc_status_added:
      return false;
    default:
      return true;
  }
}

bool isChanged(svn_wc_status_kind kind) {
  return kind == svn_wc_status_modified || kind == svn_wc_status_conflicted ||
         kind == svn_wc_status_replaced || kind == svn_wc_status_merged;
}

bool isReported(svn_wc_status_kind kind) {
  return kind != svn_wc_status_none && kind != svn_wc_status_normal;
}

void takeStore(FileState& state, const svn_client_status_t& status) {
  state.isOnlyThere = !status.versioned && status.repos_node_status == svn_wc_status_added;
  state.isOutOfDate = !state.isOnlyThere && (isReported(status.repos_node_status) ||
                                             isReported(status.repos_text_status) ||
                                             isReported(status.repos_prop_status));
  if (status.repos_node_status == svn_wc_status_deleted) state.isDeleted = true;
  if (const svn_lock_t* lock = status.repos_lock) {
    state.holder = holderFrom(*lock);
  }
  if (state.isOnlyThere) state.isDirectory = status.ood_kind == svn_node_dir;
}

/// Many files share one root, so each root is kept once. There are as many as repositories.
const std::string* rootFor(const char* url) {
  static std::mutex mutex;
  static std::set<std::string, std::less<>> roots;
  thread_local const std::string* last = nullptr;
  if (last && *last == url) return last;
  const std::lock_guard guard(mutex);
  last = &*roots.emplace(url).first;
  return last;
}

LONG heldWord(const FileState& state, const std::string& user) {
  if (!state.holder) return 0;
  if (state.isCheckedOut()) {
    return SCC_STATUS_CHECKEDOUT | SCC_STATUS_OUTBYUSER | SCC_STATUS_OUTEXCLUSIVE;
  }
  const bool isOwn = state.holder->owner == user;
  return SCC_STATUS_OUTEXCLUSIVE | (isOwn ? SCC_STATUS_OUTBYUSER : SCC_STATUS_OUTOTHER);
}

}  // namespace

std::shared_ptr<const Holder> holderFrom(const svn_lock_t& lock) {
  return std::make_shared<const Holder>(Holder{lock.token, lock.owner ? lock.owner : "",
                                               lock.comment ? lock.comment : "",
                                               lock.creation_date});
}

FileState stateOf(const svn_client_status_t& status) {
  FileState state;
  state.isDirectory = status.kind == svn_node_dir;
  state.isControlled = status.versioned && isIn(status.node_status);
  state.isScheduled = status.versioned && status.node_status == svn_wc_status_added;
  state.isMissing = status.versioned && status.node_status == svn_wc_status_missing;
  state.isModified =
      status.versioned && (isChanged(status.text_status) || isChanged(status.prop_status) ||
                           isChanged(status.node_status));
  state.isConflicted = status.conflicted;
  state.isDeleted = status.versioned && status.node_status == svn_wc_status_deleted;
  state.revision = status.revision;
  if (status.repos_root_url) state.root = rootFor(status.repos_root_url);
  if (status.repos_relpath) state.pathInStore = status.repos_relpath;
  if (status.lock && status.lock->token) state.token = status.lock->token;
  takeStore(state, status);
  return state;
}

LONG statusWordOf(const FileState& state, const std::string& user) {
  if (!state.isControlled && !state.isOnlyThere) return SCC_STATUS_NOTCONTROLLED;
  LONG word = SCC_STATUS_CONTROLLED | heldWord(state, user);
  if (state.isModified) word |= SCC_STATUS_MODIFIED;
  if (state.isConflicted) word |= SCC_STATUS_MERGED;
  if (state.isOutOfDate || state.isOnlyThere) word |= SCC_STATUS_OUTOFDATE;
  if (state.isDeleted) word |= SCC_STATUS_DELETED;
  return word;
}

}  // namespace veldra::subversion
