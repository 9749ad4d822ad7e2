#include <svn_time.h>

#include "cm/scc/interface/SccEntryPoints.h"
#include "providers/subversion/entry/Frame.h"
#include "providers/subversion/status/FileStatus.h"

using namespace veldra;
using namespace veldra::scc;
using namespace veldra::subversion;

extern "C" {
SCC_EXPORT SccPropertiesFn SccProperties;
}

namespace {

svn_error_t* showFacts(void* baton, const char* path, const svn_client_info2_t* info,
                       apr_pool_t* pool) {
  return withoutThrowing([&] {
    const auto& output = *static_cast<const TextOutput*>(baton);
    output.info(std::string("Name: ") + path);
    output.info(std::string("URL: ") + info->URL);
    output.info("Revision: " + std::to_string(info->rev));
    if (!SVN_IS_VALID_REVNUM(info->last_changed_rev)) return;
    output.info("Last change: r" + std::to_string(info->last_changed_rev) + " by " +
                (info->last_changed_author ? info->last_changed_author : "(no author)") + ", " +
                svn_time_to_human_cstring(info->last_changed_date, pool));
  });
}

svn_error_t* showProperties(void* baton, const char*, apr_hash_t* properties, apr_array_header_t*,
                            apr_pool_t* pool) {
  return withoutThrowing([&] {
    const auto& output = *static_cast<const TextOutput*>(baton);
    for (apr_hash_index_t* i = apr_hash_first(pool, properties); i; i = apr_hash_next(i)) {
      const auto* value = static_cast<const svn_string_t*>(apr_hash_this_val(i));
      output.info(std::string(static_cast<const char*>(apr_hash_this_key(i))) + " = " +
                  std::string(value->data, value->len));
    }
  });
}

}  // namespace

SCCRTN SCC_CALL SccProperties(LPVOID context, HWND, LPCSTR file) {
  return withProject(context, [&](Project& project) -> SCCRTN {
    if (!project.output.isHeard()) return SCC_E_OPNOTPERFORMED;
    const std::string name = nameOf(file);
    const FileStates states = fileStates(project, {name});
    const FileState& state = stateIn(states, name);
    if (!state.isControlled) {
      throw Failure(SCC_E_FILENOTCONTROLLED,
                    "'" + lastPartOf(name) + "' is not under version control.");
    }
    const Pool pool;
    check(svn_client_info4(name.c_str(), &NoRevision, &NoRevision, svn_depth_empty, FALSE, FALSE,
                           FALSE, nullptr, showFacts, &project.output, project.client, pool));
    if (state.holder) project.output.info(holderText(name, *state.holder));
    check(svn_client_proplist4(name.c_str(), &NoRevision, &NoRevision, svn_depth_empty, nullptr,
                               FALSE, showProperties, &project.output, project.client, pool));
    return SCC_OK;
  });
}
