#include "cm/scc/HolderEntryPoint.h"
#include "providers/subversion/entry/Frame.h"
#include "providers/subversion/session/FileNames.h"
#include "providers/subversion/status/StoreStatus.h"

using namespace veldra;
using namespace veldra::scc;
using namespace veldra::subversion;

extern "C" {
SCC_EXPORT SccQueryHoldersFn SccQueryHolders;
}

SCCRTN SCC_CALL SccQueryHolders(LPVOID context, LONG count, LPCSTR* files, HOLDERFUNC report,
                                LPVOID callerData) {
  return withProject(context, [&](Project& project) -> SCCRTN {
    if (!report) return SCC_E_NONSPECIFICERROR;
    const FileNames names = namesOf(count, files);
    const auto holders = holdersBelow(project);
    for (std::size_t i = 0; i < names.size(); ++i) {
      const auto holder = holders.find(names[i]);
      if (holder == holders.end()) continue;
      if (report(callerData, files[i], holder->second.owner.c_str()) == 0) break;
    }
    return SCC_OK;
  });
}
