#include "cm/scc/StoredFileEntryPoint.h"
#include "providers/subversion/actions/StoredVersion.h"
#include "providers/subversion/entry/Frame.h"
#include "providers/subversion/session/FileNames.h"

using namespace veldra;
using namespace veldra::scc;
using namespace veldra::subversion;

extern "C" {
SCC_EXPORT SccGetToFn SccGetTo;
}

SCCRTN SCC_CALL SccGetTo(LPVOID context, HWND, LPCSTR file, LPCSTR target) {
  return withProject(context, [&](Project& project) -> SCCRTN {
    const CancelControl control(project.output);
    writeStoredVersion(project, nameOf(file), nameOf(target));
    return SCC_OK;
  });
}
