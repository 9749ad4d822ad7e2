#include <map>

#include "cm/scc/interface/SccEntryPoints.h"
#include "providers/subversion/entry/Frame.h"
#include "providers/subversion/status/FileStatus.h"

using namespace veldra;
using namespace veldra::scc;
using namespace veldra::subversion;

extern "C" {
SCC_EXPORT SccDirQueryInfoFn SccDirQueryInfo;
SCC_EXPORT SccDirDiffFn SccDirDiff;
SCC_EXPORT SccPopulateDirListFn SccPopulateDirList;
}

namespace {

bool isInStore(const FileState& state) {
  return (state.isControlled || state.isOnlyThere) && !state.isDeleted;
}

LONG directoryStatus(Project& project, const std::string& directory) {
  const FileStates states = treeStates(project, directory, svn_depth_immediates);
  if (!isInStore(stateIn(states, directory))) return SCC_DIRSTATUS_NOTCONTROLLED;
  for (const auto& [path, state] : states) {
    if (path != directory && isInStore(state)) return SCC_DIRSTATUS_CONTROLLED;
  }
  return SCC_DIRSTATUS_EMPTYPROJ;
}

/// What distinguishes a name here from the same name in the store; empty for nothing.
std::string differenceOf(const FileState& state) {
  if (state.isOnlyThere) return "only in the store: ";
  if (!state.isControlled) return "only here: ";
  if (state.isDeleted) return "deleted: ";
  if (state.isMissing) return "missing here: ";
  if (state.isModified) return "changed here: ";
  return state.isOutOfDate && !state.isDirectory ? "newer in the store: " : "";
}

}  // namespace

SCCRTN SCC_CALL SccDirQueryInfo(LPVOID context, LONG count, LPCSTR* directories, LPLONG status) {
  return withProject(context, [&](Project& project) -> SCCRTN {
    if (count > 0 && !status) return SCC_E_NONSPECIFICERROR;
    for (LONG i = 0; i < count; ++i) status[i] = SCC_DIRSTATUS_INVALID;
    const FileNames names = namesOf(count, directories);
    for (std::size_t i = 0; i < names.size(); ++i) status[i] = directoryStatus(project, names[i]);
    return SCC_OK;
  });
}

SCCRTN SCC_CALL SccDirDiff(LPVOID context, HWND, LPCSTR directory, LONG flags, LPCMDOPTS) {
  return withProject(context, [&](Project& project) -> SCCRTN {
    const std::string name = nameOf(directory);
    const FileStates states = treeStates(project, name, svn_depth_infinity);
    if (!isInStore(stateIn(states, name))) {
      throw Failure(SCC_E_FILENOTCONTROLLED,
                    "'" + lastPartOf(name) + "' is not under version control.");
    }
    bool differs = false;
    for (const auto& [path, state] : std::map(states.begin(), states.end())) {
      const std::string difference = differenceOf(state);
      if (difference.empty()) continue;
      differs = true;
      if ((flags & SCC_DIFF_QUICK_DIFF) == 0) project.output.info(difference + path);
    }
    return differs ? SCC_I_FILEDIFFERS : SCC_OK;
  });
}

SCCRTN SCC_CALL SccPopulateDirList(LPVOID context, LONG count, LPCSTR* directories,
                                   POPDIRLISTFUNC populate, LPVOID callerData, LONG flags) {
  return withProject(context, [&](Project& project) -> SCCRTN {
    if (!populate) return SCC_E_UNKNOWNERROR;
    const bool isRecursive = (flags & SCC_PDL_RECURSIVE) != 0;
    const bool hasFiles = (flags & SCC_PDL_INCLUDEFILES) != 0;
    for (const std::string& directory : namesOf(count, directories)) {
      const FileStates states =
          treeStates(project, directory, isRecursive ? svn_depth_infinity : svn_depth_immediates);
      for (const auto& [path, state] : std::map(states.begin(), states.end())) {
        if (path == directory || !isInStore(state)) continue;
        if (!state.isDirectory && !hasFiles) continue;
        if (const BOOL answer = populate(callerData, state.isDirectory ? 1 : 0, path.c_str()))
          return answer;
      }
    }
    return SCC_OK;
  });
}
