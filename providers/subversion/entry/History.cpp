#include <svn_compat.h>
#include <svn_props.h>
#include <svn_time.h>

#include "cm/scc/interface/SccEntryPoints.h"
#include "providers/subversion/entry/Frame.h"
#include "providers/subversion/work/Selection.h"

using namespace veldra;
using namespace veldra::scc;
using namespace veldra::subversion;

extern "C" {
SCC_EXPORT SccHistoryFn SccHistory;
}

namespace {

svn_error_t* show(void* baton, svn_log_entry_t* entry, apr_pool_t* pool) {
  const char* author = nullptr;
  const char* date = nullptr;
  const char* comment = nullptr;
  svn_compat_log_revprops_out(&author, &date, &comment, entry->revprops);
  apr_time_t when = 0;
  if (date) SVN_ERR(svn_time_from_cstring(&when, date, pool));
  return withoutThrowing([&] {
    const auto& output = *static_cast<const TextOutput*>(baton);
    output.info("r" + std::to_string(entry->revision) + "  " + (author ? author : "(no author)") +
                "  " + (date ? svn_time_to_human_cstring(when, pool) : "(no date)"));
    if (comment && *comment != '\0') output.info(comment);
  });
}

void showHistory(Project& project, const std::string& file) {
  const Pool pool;
  project.output.info("History of " + file);
  apr_array_header_t* const ranges =
      apr_array_make(pool, 1, sizeof(const svn_opt_revision_range_t*));
  // From the version at hand: it has a history even when the store has deleted or renamed it since.
  svn_opt_revision_t base = NoRevision;
  base.kind = svn_opt_revision_base;
  svn_opt_revision_range_t all{base, NoRevision};
  all.end.kind = svn_opt_revision_number;
  all.end.value.number = 1;
  APR_ARRAY_PUSH(ranges, svn_opt_revision_range_t*) = &all;
  check(svn_client_log5(arrayOf({file}, pool), &base, ranges, 0, FALSE, FALSE, FALSE,
                        svn_compat_log_revprops_in(pool), show, &project.output, project.client,
                        pool));
}

}  // namespace

SCCRTN SCC_CALL SccHistory(LPVOID context, HWND, LONG count, LPCSTR* files, LONG, LPCMDOPTS) {
  return withProject(context, [&](Project& project) -> SCCRTN {
    // There is no window of our own, so without the callback there is no place to show it.
    if (!project.output.isHeard()) return SCC_E_OPNOTPERFORMED;
    Outcome outcome;
    const CancelControl control(project.output);
    for (const std::string& file : controlledOnes(project, namesOf(count, files), outcome))
      showHistory(project, file);
    return outcome.result();
  });
}
