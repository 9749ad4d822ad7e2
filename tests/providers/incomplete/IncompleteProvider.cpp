// A provider that can be initialised and opened, and nothing else: no other entry point is there.

#include <cstring>

#include "cm/scc/SccInterface.h"

using namespace veldra::scc;

extern "C" {

SCC_EXPORT SCCRTN SccInitialize(LPVOID* context, HWND, LPCSTR, LPSTR name, LPLONG capabilities,
                                LPSTR, LPLONG, LPLONG) {
  static int theContext = 0;
  *context = &theContext;
  std::strcpy(name, "Incomplete");
  *capabilities = 0;
  return SCC_OK;
}

SCC_EXPORT SCCRTN SccOpenProject(LPVOID, HWND, LPSTR, LPCSTR, LPCSTR, LPSTR, LPCSTR, LPTEXTOUTPROC,
                                 LONG) {
  return SCC_OK;
}

}  // extern "C"
