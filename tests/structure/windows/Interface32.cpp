// Compiled for 32-bit Windows, not run: there a function pointer has a calling convention, and a
// wrong one leaves the stack of the caller in disorder. The interface has one alone.

#include <type_traits>

#include "cm/scc/SccInterface.h"

namespace veldra::scc {

static_assert(sizeof(LPVOID) == 4, "compiled for the wrong processor");
static_assert(sizeof(LONG) == 4 && sizeof(SCCRTN) == 4);

static_assert(std::is_same_v<SccUninitializeFn, SCCRTN __cdecl(LPVOID)>);
static_assert(!std::is_same_v<SccUninitializeFn, SCCRTN __stdcall(LPVOID)>);
static_assert(std::is_same_v<LPTEXTOUTPROC, LONG(__cdecl*)(LPSTR, LONG)>);
static_assert(std::is_same_v<POPLISTFUNC, BOOL(__cdecl*)(LPVOID, BOOL, LONG, LPSTR)>);

}  // namespace veldra::scc
