#include <cstdio>

#include "cm/scc/interface/SccCapabilities.h"
#include "cm/scc/interface/SccEntryPoints.h"
#include "providers/subversion/entry/Frame.h"
#include "providers/subversion/runtime/Runtime.h"

using namespace veldra;
using namespace veldra::scc;
using namespace veldra::subversion;

extern "C" {
SCC_EXPORT SccGetVersionFn SccGetVersion;
SCC_EXPORT SccInitializeFn SccInitialize;
SCC_EXPORT SccUninitializeFn SccUninitialize;
}

namespace {

constexpr DWORD Capabilities =
    SCC_CAP_REMOVE | SCC_CAP_RENAME | SCC_CAP_DIFF | SCC_CAP_HISTORY | SCC_CAP_PROPERTIES |
    SCC_CAP_QUERYINFO | SCC_CAP_GETPROJPATH | SCC_CAP_COMMENTCHECKOUT | SCC_CAP_COMMENTCHECKIN |
    SCC_CAP_COMMENTADD | SCC_CAP_COMMENTREMOVE | SCC_CAP_TEXTOUT | SCC_CAP_CREATESUBPROJECT |
    SCC_CAP_GETPARENTPROJECT | SCC_CAP_DIRECTORYSTATUS | SCC_CAP_DIRECTORYDIFF |
    SCC_CAP_HISTORY_MULTFILE | SCC_CAP_IGNORESPACE | SCC_CAP_POPULATELIST | SCC_CAP_COMMENTPROJECT |
    SCC_CAP_DIFFALWAYS | SCC_CAP_GET_NOUI | SCC_CAP_REENTRANT;

/// Subversion sets no bound; this one keeps programs that allocate such a buffer content.
constexpr LONG LongestComment = 32767;

}  // namespace

LONG SCC_CALL SccGetVersion() {
  return SCC_VERSION_1_3;
}

SCCRTN SCC_CALL SccInitialize(LPVOID* context, HWND, LPCSTR, LPSTR providerName,
                              LPLONG capabilities, LPSTR auxPathLabel, LPLONG checkoutCommentLength,
                              LPLONG commentLength) {
  return guarded(TextOutput(), [&]() -> SCCRTN {
    if (!context || !prepareRuntime()) return SCC_E_INITIALIZEFAILED;
    if (providerName) std::snprintf(providerName, SCC_NAME_SIZE, "Veldra Subversion");
    if (auxPathLabel) std::snprintf(auxPathLabel, SCC_AUXLABEL_SIZE, "Subversion repository:");
    if (capabilities) *capabilities = static_cast<LONG>(Capabilities);
    if (checkoutCommentLength) *checkoutCommentLength = LongestComment;
    if (commentLength) *commentLength = LongestComment;
    *context = Context::create();
    return SCC_OK;
  });
}

SCCRTN SCC_CALL SccUninitialize(LPVOID context) {
  return guarded(TextOutput(), [&]() -> SCCRTN {
    return Context::destroy(context) ? SCC_OK : SCC_E_INITIALIZEFAILED;
  });
}
