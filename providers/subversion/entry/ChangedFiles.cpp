#include "cm/scc/interface/SccEntryPoints.h"
#include "providers/subversion/entry/Frame.h"
#include "providers/subversion/status/FileStatus.h"

using namespace veldra;
using namespace veldra::scc;
using namespace veldra::subversion;

extern "C" {
SCC_EXPORT SccEnumChangedFilesFn SccEnumChangedFiles;
}

SCCRTN SCC_CALL SccEnumChangedFiles(LPVOID context, HWND, LONG count, LPCSTR* files,
                                    LPLONG different) {
  return withProject(context, [&](Project& project) -> SCCRTN {
    if (count > 0 && !different) return SCC_E_NONSPECIFICERROR;
    const FileNames names = namesOf(count, files);
    const FileStates states = fileStates(project, names);
    for (std::size_t i = 0; i < names.size(); ++i) {
      const FileState& state = stateIn(states, names[i]);
      const bool isSame = state.isControlled && !state.isModified && !state.isMissing &&
                          !state.isOutOfDate && !state.isDeleted;
      different[i] = isSame ? 0 : 1;
    }
    return SCC_OK;
  });
}
