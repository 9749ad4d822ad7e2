#include "cm/scc/interface/SccEntryPoints.h"
#include "providers/subversion/entry/Frame.h"
#include "providers/subversion/work/Move.h"

using namespace veldra;
using namespace veldra::scc;
using namespace veldra::subversion;

extern "C" {
SCC_EXPORT SccRenameFn SccRename;
}

SCCRTN SCC_CALL SccRename(LPVOID context, HWND, LPCSTR file, LPCSTR newName) {
  return withProject(context, [&](Project& project) -> SCCRTN {
    const std::string from = nameOf(file);
    const std::string to = nameOf(newName);
    const CancelControl control(project.output);
    Move move(project, from, to);
    const svn_revnum_t revision = move.commit();
    project.output.info("Renamed in revision " + std::to_string(revision) + ".");
    return SCC_OK;
  });
}
