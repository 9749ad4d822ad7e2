#include "cm/scc/interface/SccEntryPoints.h"
#include "providers/subversion/actions/Outcome.h"
#include "providers/subversion/actions/Selection.h"
#include "providers/subversion/entry/Frame.h"
#include "providers/subversion/status/FileStatus.h"
#include "providers/subversion/status/LocalStatus.h"

using namespace veldra;
using namespace veldra::scc;
using namespace veldra::subversion;

extern "C" {
SCC_EXPORT SccCheckinFn SccCheckin;
}

namespace {

/// A commit gives back the locks of what it commits; unchanged files keep theirs.
void giveBackTheRest(Project& project, const FileNames& files, Outcome& outcome) {
  const FileStates states = localStates(project.client, files);
  FileNames held;
  for (const std::string& file : files) {
    if (!stateIn(states, file).isHeldHere()) continue;
    held.push_back(file);
    project.output.info("'" + lastPartOf(file) + "' has not been changed; no revision is made.");
  }
  giveBack(project, held, outcome);
}

}  // namespace

SCCRTN SCC_CALL SccCheckin(LPVOID context, HWND, LONG count, LPCSTR* files, LPCSTR comment,
                           LONG flags, LPCMDOPTS) {
  return withProject(context, [&](Project& project) -> SCCRTN {
    Outcome outcome;
    const FileNames present = presentOnes(project, namesOf(count, files), outcome);
    const FileNames held = heldOnes(project, present, outcome);
    if (held.empty()) return outcome.result();
    const CancelControl control(project.output);
    const bool isKept = (flags & SCC_KEEP_CHECKEDOUT) != 0;
    const svn_revnum_t revision = project.client.commit(held, svn_depth_empty, isKept, comment);
    if (SVN_IS_VALID_REVNUM(revision))
      project.output.info("Checked in as revision " + std::to_string(revision) + ".");
    if (!isKept) giveBackTheRest(project, held, outcome);
    return outcome.result();
  });
}
