#include "cm/scc/interface/SccCapabilities.h"
#include "cm/scc/interface/SccEntryPoints.h"
#include "providers/subversion/entry/Frame.h"

using namespace veldra;
using namespace veldra::scc;
using namespace veldra::subversion;

extern "C" {
SCC_EXPORT SccSetOptionFn SccSetOption;
SCC_EXPORT SccGetExtendedCapabilitiesFn SccGetExtendedCapabilities;
SCC_EXPORT SccIsMultiCheckoutEnabledFn SccIsMultiCheckoutEnabled;
}

SCCRTN SCC_CALL SccSetOption(LPVOID pointer, LONG option, LONG value) {
  return withContext(pointer, [&](Context& context) -> SCCRTN {
    switch (option) {
      case SCC_OPT_HASCANCELMODE:
        context.hasCancelMode = value == SCC_OPT_HCM_YES;
        return SCC_OK;
      // Nothing is done in the background, so there is nothing to suspend.
      case SCC_OPT_EVENTQUEUE:
      // Nothing is remembered between calls that another tool could make untrue.
      case SCC_OPT_SCCCHECKOUTONLY:
        return SCC_OK;
      default:
        return SCC_E_OPNOTSUPPORTED;
    }
  });
}

SCCRTN SCC_CALL SccGetExtendedCapabilities(LPVOID pointer, LONG capability, LPBOOL supported) {
  return withContext(pointer, [&](Context&) -> SCCRTN {
    if (!supported) return SCC_E_NONSPECIFICERROR;
    switch (capability) {
      case SCC_EXCAP_ENUM_CHANGED_FILES:
      case SCC_EXCAP_POPULATELIST_DIR:
      case SCC_EXCAP_THREADSAFE_QUERY_INFO:
      case SCC_EXCAP_DELETE_CHECKEDOUT:
      case SCC_EXCAP_RENAME_CHECKEDOUT:
        *supported = 1;
        break;
      default:
        *supported = 0;
    }
    return SCC_OK;
  });
}

SCCRTN SCC_CALL SccIsMultiCheckoutEnabled(LPVOID pointer, LPBOOL enabled) {
  return withProject(pointer, [&](Project&) -> SCCRTN {
    if (!enabled) return SCC_E_NONSPECIFICERROR;
    // A lock has one holder.
    *enabled = 0;
    return SCC_OK;
  });
}
