// A provider that does nothing, at once: what remains is what its consumer costs.

#include "cm/scc/SccInterface.h"

extern "C" SCC_EXPORT veldra::scc::SCCRTN SCC_CALL SccGet(veldra::scc::LPVOID, veldra::scc::HWND,
                                                          veldra::scc::LONG, veldra::scc::LPCSTR*,
                                                          veldra::scc::LONG,
                                                          veldra::scc::LPCMDOPTS) {
  return veldra::scc::SCC_OK;
}
