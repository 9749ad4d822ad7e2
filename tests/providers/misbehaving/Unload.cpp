// Apart from the provider, whose types have names that the system's own headers have too.

#include "tests/providers/misbehaving/Unload.h"

#if defined(_WIN32)
#include <windows.h>
#else
#include <dlfcn.h>
#endif

namespace veldra::test {

namespace {

// More often than anybody can have loaded it.
constexpr int Often = 64;

}  // namespace

#if defined(_WIN32)

void unloadMyself() {
  HMODULE self = nullptr;
  GetModuleHandleExW(
      GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
      reinterpret_cast<const wchar_t*>(&unloadMyself), &self);
  for (int i = 0; self != nullptr && i < Often; ++i) FreeLibrary(self);
}

#else

void unloadMyself() {
  Dl_info where{};
  dladdr(reinterpret_cast<void*>(&unloadMyself), &where);
  void* const self = dlopen(where.dli_fname, RTLD_NOW | RTLD_NOLOAD);
  for (int i = 0; self != nullptr && i < Often; ++i) dlclose(self);
}

#endif

}  // namespace veldra::test
