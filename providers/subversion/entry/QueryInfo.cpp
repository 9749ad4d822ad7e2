#include <algorithm>

#include "cm/scc/interface/SccEntryPoints.h"
#include "providers/subversion/entry/Frame.h"
#include "providers/subversion/status/FileStatus.h"

using namespace veldra;
using namespace veldra::scc;
using namespace veldra::subversion;

extern "C" {
SCC_EXPORT SccQueryInfoFn SccQueryInfo;
}

SCCRTN SCC_CALL SccQueryInfo(LPVOID context, LONG count, LPCSTR* files, LPLONG status) {
  return withProject(context, [&](Project& project) -> SCCRTN {
    if (count <= 0) return SCC_OK;
    if (!status) throw Failure(SCC_E_NONSPECIFICERROR, "There is no room for the status.");
    // Whatever fails, no entry is left to chance.
    std::fill_n(status, count, SCC_STATUS_INVALID);
    const FileNames names = namesOf(count, files);
    const FileStates states = fileStates(project, names);
    std::ranges::transform(names, status, [&](const std::string& name) {
      return statusWordOf(stateIn(states, name), project.user);
    });
    return SCC_OK;
  });
}
