#include <svn_io.h>

#include "cm/scc/interface/SccEntryPoints.h"
#include "providers/subversion/entry/Frame.h"
#include "providers/subversion/work/Comparison.h"
#include "providers/subversion/work/Selection.h"

using namespace veldra;
using namespace veldra::scc;
using namespace veldra::subversion;

extern "C" {
SCC_EXPORT SccDiffFn SccDiff;
}

SCCRTN SCC_CALL SccDiff(LPVOID context, HWND, LPCSTR file, LONG flags, LPCMDOPTS) {
  return withProject(context, [&](Project& project) -> SCCRTN {
    Outcome outcome;
    const FileNames known = controlledOnes(project, {nameOf(file)}, outcome);
    if (known.empty()) return outcome.result();
    if (presentOnes(project, known, outcome).empty()) return outcome.result();
    const bool isShown = (flags & SCC_DIFF_QUICK_DIFF) == 0;
    const bool differs = isShown ? showDifference(project, known.front(), flags)
                                 : hasOtherBytes(project, known.front());
    return differs ? SCC_I_FILEDIFFERS : SCC_OK;
  });
}
