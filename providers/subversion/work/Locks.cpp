#include "providers/subversion/work/Locks.h"

#include <svn_error_codes.h>

#include "providers/subversion/runtime/Failure.h"

namespace veldra::subversion {
namespace {

Refusal refusalFrom(svn_error_t* error) {
  const bool isOutOfDate = error && (svn_error_find_cause(error, SVN_ERR_FS_OUT_OF_DATE) ||
                                     svn_error_find_cause(error, SVN_ERR_FS_NOT_FOUND));
  return {error ? resultOf(error) : scc::SCCRTN{scc::SCC_E_NONSPECIFICERROR}, isOutOfDate,
          textOf(error)};
}

}  // namespace

Refusals lockFiles(Project& project, const FileNames& files, const char* comment) {
  const Pool pool;
  Refusals refusals;
  const Listening listening(project.client, [&](const svn_wc_notify_t& notification) {
    if (notification.action == svn_wc_notify_failed_lock)
      refusals.insert_or_assign(notification.path, refusalFrom(notification.err));
  });
  check(svn_client_lock(arrayOf(files, pool), comment, FALSE, project.client, pool));
  return refusals;
}

Refusals unlockFiles(Project& project, const FileNames& files) {
  const Pool pool;
  Refusals refusals;
  if (files.empty()) return refusals;
  const Listening listening(project.client, [&](const svn_wc_notify_t& notification) {
    if (notification.action != svn_wc_notify_failed_unlock) return;
    if (notification.err && svn_error_find_cause(notification.err, SVN_ERR_FS_NO_SUCH_LOCK)) return;
    refusals.insert_or_assign(notification.path, refusalFrom(notification.err));
  });
  check(svn_client_unlock(arrayOf(files, pool), FALSE, project.client, pool));
  return refusals;
}

}  // namespace veldra::subversion
