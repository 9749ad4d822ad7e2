#include <algorithm>

#include "cm/scc/interface/SccEntryPoints.h"
#include "providers/subversion/actions/Outcome.h"
#include "providers/subversion/actions/Selection.h"
#include "providers/subversion/actions/WorkingFiles.h"
#include "providers/subversion/actions/WritableFiles.h"
#include "providers/subversion/entry/Frame.h"
#include "providers/subversion/status/FileStatus.h"

using namespace veldra;
using namespace veldra::scc;
using namespace veldra::subversion;

extern "C" {
SCC_EXPORT SccGetFn SccGet;
}

namespace {

/// What is to be done so that files are what the store has. Nothing at all for most of them.
struct Work {
  FileNames toRestore;  ///< Changed, lost, or writable although they are not checked out.
  FileNames toUpdate;
  FileNames toShow;  ///< Somebody compares; the working copy stays at its revision.
};

Work planFor(Project& project, const FileNames& files, Outcome& outcome) {
  const FileStates states = fileStates(project, files);
  Work work;
  FileNames same;
  for (const std::string& file : files) {
    const FileState& state = stateIn(states, file);
    // A lost file has nothing to lose, even when it is checked out.
    if (state.isCheckedOut() && !state.isMissing) {
      refuse(project, outcome, file, "is checked out here. Undo the check-out to get it anew.",
             SCC_E_FILEISCHECKEDOUT);
    } else if (state.isDeleted) {
      refuse(project, outcome, file, "was deleted from the store.", SCC_E_FILENOTCONTROLLED);
    } else {
      if (state.isModified) {
        project.output.warning("The changes of '" + lastPartOf(file) +
                               "' give way to the store's version.");
      }
      if (state.isMissing && state.isOutOfDate && isSetAside(file)) {
        work.toShow.push_back(file);
        continue;
      }
      const bool isSame = state.isControlled && !state.isModified && !state.isMissing;
      if (isSame) {
        same.push_back(file);
      } else if (state.isControlled) {
        work.toRestore.push_back(file);
      }
      if (!state.isControlled || state.isOutOfDate) work.toUpdate.push_back(file);
    }
  }
  std::ranges::copy(wronglyWritable(project, same), std::back_inserter(work.toRestore));
  return work;
}

/// Files that the working copy did not know are there now, or the store does not know them either.
void checkArrival(Project& project, const FileNames& files, Outcome& outcome) {
  const FileStates states = fileStates(project, files);
  FileNames inTheWay;
  for (const std::string& file : files) {
    const FileState& state = stateIn(states, file);
    if (!state.isControlled) {
      refuse(project, outcome, file, "is not under version control.", SCC_E_FILENOTCONTROLLED);
    } else if (state.isModified) {
      inTheWay.push_back(file);
    }
  }
  restore(project, inTheWay);
}

void getFiles(Project& project, const FileNames& files, Outcome& outcome) {
  const Work work = planFor(project, files, outcome);
  for (const std::string& file : work.toShow) exportNewest(project, file);
  restore(project, work.toRestore);
  update(project, work.toUpdate, svn_depth_infinity);
  if (!work.toUpdate.empty()) checkArrival(project, work.toUpdate, outcome);
}

/// With everything that is new in the store.
void getDirectories(Project& project, const FileNames& directories, bool isRecursive,
                    Outcome& outcome) {
  FileNames files = filesBelow(project, directories, isRecursive);
  const FileStates states = fileStates(project, files);
  std::erase_if(files, [&](const std::string& file) {
    const FileState& state = stateIn(states, file);
    return state.isCheckedOut() || state.isDeleted;
  });
  getFiles(project, files, outcome);
  update(project, directories, isRecursive ? svn_depth_infinity : svn_depth_files);
}

}  // namespace

SCCRTN SCC_CALL SccGet(LPVOID context, HWND, LONG count, LPCSTR* files, LONG flags, LPCMDOPTS) {
  return withProject(context, [&](Project& project) -> SCCRTN {
    Outcome outcome;
    const FileNames names = namesOf(count, files);
    const CancelControl control(project.output);
    if ((flags & SCC_GET_ALL) != 0) {
      getDirectories(project, names, (flags & SCC_GET_RECURSIVE) != 0, outcome);
    } else {
      getFiles(project, names, outcome);
    }
    return outcome.result();
  });
}
