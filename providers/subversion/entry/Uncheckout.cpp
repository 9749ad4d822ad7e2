#include "cm/scc/interface/SccEntryPoints.h"
#include "providers/subversion/entry/Frame.h"
#include "providers/subversion/work/Outcome.h"
#include "providers/subversion/work/Selection.h"
#include "providers/subversion/work/WorkingFiles.h"

using namespace veldra;
using namespace veldra::scc;
using namespace veldra::subversion;

extern "C" {
SCC_EXPORT SccUncheckoutFn SccUncheckout;
}

SCCRTN SCC_CALL SccUncheckout(LPVOID context, HWND, LONG count, LPCSTR* files, LONG, LPCMDOPTS) {
  return withProject(context, [&](Project& project) -> SCCRTN {
    Outcome outcome;
    const FileNames names = namesOf(count, files);
    const FileNames held = heldOnes(project, names, outcome);
    const CancelControl control(project.output);
    restore(project, held);
    giveBack(project, held, outcome);
    return outcome.result();
  });
}
