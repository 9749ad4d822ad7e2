#include "cm/scc/interface/SccEntryPoints.h"
#include "providers/subversion/entry/Frame.h"
#include "providers/subversion/work/Selection.h"
#include "providers/subversion/work/WorkingFiles.h"

using namespace veldra;
using namespace veldra::scc;
using namespace veldra::subversion;

extern "C" {
SCC_EXPORT SccRemoveFn SccRemove;
}

namespace {

/// The files stay on the disk, whether the store takes the deletion or not.
svn_revnum_t removeFromStore(Project& project, const FileNames& files, LPCSTR comment) {
  const Pool pool;
  check(svn_client_delete4(arrayOf(files, pool), TRUE, TRUE, nullptr, nullptr, nullptr,
                           project.client, pool));
  try {
    return project.client.commit(files, svn_depth_infinity, false, comment);
  } catch (const Failure& failure) {
    dropSchedules(project, files);
    // Subversion calls it locked, for a program it is checked out by somebody else.
    const bool isHeld =
        failure.result() == SCC_E_FILEOUTEXCLUSIVE || failure.result() == SCC_E_NOTCHECKEDOUT;
    throw Failure(isHeld ? SCCRTN{SCC_E_FILEISCHECKEDOUT} : failure.result(), failure.text());
  }
}

}  // namespace

SCCRTN SCC_CALL SccRemove(LPVOID context, HWND, LONG count, LPCSTR* files, LPCSTR comment, LONG,
                          LPCMDOPTS) {
  return withProject(context, [&](Project& project) -> SCCRTN {
    Outcome outcome;
    const FileNames known = controlledOnes(project, namesOf(count, files), outcome);
    if (known.empty()) return outcome.result();
    const CancelControl control(project.output);
    const svn_revnum_t revision = removeFromStore(project, known, comment);
    if (SVN_IS_VALID_REVNUM(revision))
      project.output.info("Removed in revision " + std::to_string(revision) + ".");
    return outcome.result();
  });
}
